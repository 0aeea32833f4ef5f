#pragma once

// Time that passes only while Qt waits: a wait of ten seconds takes none, and a run goes the same
// way each time however slow the machine or the build is.
namespace VirtualTime {

// From now on, for the thread of main(). Before the application object.
void begin();

} // namespace VirtualTime
