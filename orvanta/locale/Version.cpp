#include <orvanta/locale/Version.h>

extern "C" {

const double OrvantaLocalizerVersionNumber = 1.0;

const unsigned char OrvantaLocalizerVersionString[] =
    "@(#)PROGRAM:OrvantaLocalizer  PROJECT:OrvantaLocalizer-1\n";
}
