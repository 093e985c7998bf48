#pragma once

#include <orvanta/Export.h>

extern "C" {

/// The library's version as a number.
ORVANTA_EXPORT extern const double OrvantaLocalizerVersionNumber;

/// The library's version as text that tools can find in the binary; ends in a line feed.
ORVANTA_EXPORT extern const unsigned char OrvantaLocalizerVersionString[];
}
