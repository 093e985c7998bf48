#include <orvanta/locale/Localizer.h>
#include <orvanta/qt/LanguageNotifier.h>
#include <orvanta/qt/Text.h>

namespace orvanta::qt {

LanguageNotifier::LanguageNotifier(QObject* parent)
    : QObject(parent), observer_([this] { Q_EMIT changed(); }) {}

QStringList LanguageNotifier::locales() {
  QStringList locales;
  for (const String& locale : Localizer::sharedLocalizer().currentLocales()) {
    locales << toQString(locale);
  }
  return locales;
}

}  // namespace orvanta::qt
