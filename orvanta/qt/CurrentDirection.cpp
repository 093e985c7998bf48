#include <QWidget>

#include <orvanta/fonts/localizationUtilities.h>
#include <orvanta/locale/Localizer.h>
#include <orvanta/qt/CurrentDirection.h>

namespace orvanta::qt {

bool currentLanguageIsRightToLeft() {
  const StringList& locales = Localizer::sharedLocalizer().currentLocales();
  return !locales.empty() && localizationUtilities::languageAlignmentIsReversed(
                                 Localizer::languageOnlyFromString(locales.front()));
}

bool textBeginsAtRight(const QWidget& widget) {
  for (const QWidget* around = &widget; around != nullptr;
       around = around->isWindow() ? nullptr : around->parentWidget()) {
    if (around->testAttribute(Qt::WA_SetLayoutDirection)) {
      return around->layoutDirection() == Qt::RightToLeft;
    }
  }
  return currentLanguageIsRightToLeft();
}

}  // namespace orvanta::qt
