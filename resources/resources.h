#pragma once

// Registers the pictures, animations, sounds and the symbol font under ":/new/prefix1/".
// Must be called once before the first of them is used; calling it again is harmless.
void loadResources();
