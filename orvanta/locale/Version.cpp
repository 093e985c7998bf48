#include <orvanta/locale/Version.h>

// "1.0" as a literal, and "1" as text.
#define ORVANTA_NUMBER_OF(major, minor) major##.##minor
#define ORVANTA_NUMBER(major, minor) ORVANTA_NUMBER_OF(major, minor)
#define ORVANTA_TEXT_OF(value) #value
#define ORVANTA_TEXT(value) ORVANTA_TEXT_OF(value)

extern "C" {

const double OrvantaLocalizerVersionNumber =
    ORVANTA_NUMBER(ORVANTA_VERSION_MAJOR, ORVANTA_VERSION_MINOR);

const unsigned char OrvantaLocalizerVersionString[] =
    "@(#)PROGRAM:OrvantaLocalizer  PROJECT:OrvantaLocalizer-" ORVANTA_TEXT(
        ORVANTA_VERSION_MAJOR) "\n";
}
