#pragma once

#include <orvanta/Export.h>

/// The version of these headers, for the preprocessor. The build reads it from here.
#define ORVANTA_VERSION_MAJOR 1
#define ORVANTA_VERSION_MINOR 0
#define ORVANTA_VERSION_PATCH 0

extern "C" {

/// The library's version, "major.minor" as a number.
ORVANTA_EXPORT extern const double OrvantaLocalizerVersionNumber;

/// The library's version as text that tools can find in the binary; ends in a line feed.
ORVANTA_EXPORT extern const unsigned char OrvantaLocalizerVersionString[];
}
