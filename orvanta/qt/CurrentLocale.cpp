#include <orvanta/locale/Localizer.h>
#include <orvanta/qt/CurrentLocale.h>
#include <orvanta/qt/Text.h>

namespace orvanta::qt {

QLocale currentLocale() {
  const StringList& locales = Localizer::sharedLocalizer().currentLocales();
  return locales.empty() ? QLocale::c() : QLocale(toQString(locales.front()));
}

}  // namespace orvanta::qt
