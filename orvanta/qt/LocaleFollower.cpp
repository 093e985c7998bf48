#include <orvanta/locale/Localizer.h>
#include <orvanta/qt/CurrentLocale.h>
#include <orvanta/qt/LocaleFollower.h>

namespace orvanta::qt {

namespace {

bool namesALanguageAlone(std::string_view identifier) {
  return identifier.find_first_of("-_") == std::string_view::npos;
}

void follow(const QLocale& original) {
  const QLocale current = currentLocale();
  if (current == QLocale::c()) {
    QLocale::setDefault(original);
    return;
  }
  const QLocale system = QLocale::system();
  const bool isTheSystems =
      system.language() == current.language() &&
      namesALanguageAlone(Localizer::sharedLocalizer().currentLocales().front().view());
  QLocale::setDefault(isTheSystems ? system : current);
}

}  // namespace

LocaleFollower::LocaleFollower() : observer_([this] { follow(original_); }) {
  follow(original_);
}

}  // namespace orvanta::qt
