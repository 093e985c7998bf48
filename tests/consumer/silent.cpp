#include <orvanta/locale/Localizer.h>

/// Refers to nothing of the library's version.
int main() {
  return orvanta::Localizer::sharedLocalizer().currentLocales().empty() ? 1 : 0;
}
