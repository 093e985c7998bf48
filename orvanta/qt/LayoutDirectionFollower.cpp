#include <QGuiApplication>

#include <orvanta/fonts/localizationUtilities.h>
#include <orvanta/locale/Localizer.h>
#include <orvanta/qt/LayoutDirectionFollower.h>

namespace orvanta::qt {

namespace {

// By the data that exchange the sides of texts, so that the layout and the texts in it agree.
void followCurrentLanguage() {
  const StringList& locales = Localizer::sharedLocalizer().currentLocales();
  const bool reversed = !locales.empty() && localizationUtilities::languageAlignmentIsReversed(
                                                Localizer::languageOnlyFromString(locales.front()));
  QGuiApplication::setLayoutDirection(reversed ? Qt::RightToLeft : Qt::LeftToRight);
}

}  // namespace

LayoutDirectionFollower::LayoutDirectionFollower() : observer_(followCurrentLanguage) {
  followCurrentLanguage();
}

}  // namespace orvanta::qt
