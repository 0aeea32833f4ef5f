#pragma once

// What the program asks of Qt and of the desktop before its first window.
namespace Platform {

// Before the application object. What the user has set in the environment stays.
void prepare();

// After the application object and before the first widget.
void limitCache();
// All widgets take the Fusion style in its own light colors, so that style sheets, sliders and
// plain texts look alike on every host.
void makeFusion();
// Style sheets name fonts that not every desktop carries; each family that the host lacks gets a
// stand-in: a metric-compatible one, or, for the symbol families, the small symbol font that the
// program brings along.
void installFonts();

} // namespace Platform
