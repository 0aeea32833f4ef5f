#pragma once

// Time that passes only while Qt waits: a wait of ten seconds takes none, and a run goes the same
// way each time however slow the machine or the build is. All of Qt's timers, animations and
// movies go by it, and so the program is tested as it is.
namespace VirtualTime {

// From now on, for the thread of main(). Before the application object.
void begin();
// Lets ms pass, and with them all that is due.
void pass(int ms);

} // namespace VirtualTime
