#include <QWidget>

#include <orvanta/fonts/localizationUtilities.h>
#include <orvanta/locale/Localizer.h>
#include <orvanta/qt/CurrentDirection.h>
#include <orvanta/text/NoDestructor.h>

namespace orvanta::qt {

bool currentLanguageIsRightToLeft() {
  // The last answer, because every label asks at a change: the benchmark's row switch-qt-hidden.
  struct Answer {
    String locale;
    bool isRightToLeft = false;
  };
  static NoDestructor<Answer> last;
  const StringList& locales = Localizer::sharedLocalizer().currentLocales();
  if (locales.empty()) {
    return false;
  }
  if (last->locale != locales.front()) {
    *last = {locales.front(), localizationUtilities::languageAlignmentIsReversed(
                                  Localizer::languageOnlyFromString(locales.front()))};
  }
  return last->isRightToLeft;
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
