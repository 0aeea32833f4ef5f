#pragma once

// Style sheets name fonts that not every desktop carries. This layer gives Qt a
// stand-in for each family that the host lacks: a metric-compatible one, or, for
// the symbol families, the small symbol font that the program brings along.
namespace PlatformFonts {

// Once, after the application object and before the first widget.
void install();

} // namespace PlatformFonts
