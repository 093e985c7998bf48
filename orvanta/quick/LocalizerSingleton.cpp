#include <QJSEngine>
#include <QVariantMap>
#include <vector>

#include <orvanta/fonts/localizationUtilities.h>
#include <orvanta/locale/Localizer.h>
#include <orvanta/qt/CurrentDirection.h>
#include <orvanta/qt/LanguageNotifier.h>
#include <orvanta/qt/Messages.h>
#include <orvanta/qt/Text.h>
#include <orvanta/qt/platform/QtFonts.h>
#include <orvanta/quick/LocalizerSingleton.h>

namespace orvanta::quick {

namespace {

QVariantMap namedArguments(const QJSValue& arguments) {
  if (!arguments.isArray()) {
    return arguments.toVariant().toMap();
  }
  QVariantMap named;
  for (const QVariant& argument : arguments.toVariant().toList()) {
    named.insert(QString::number(named.size()), argument);
  }
  return named;
}

}  // namespace

QString LocalizerFunctions::text(const QString& key) const {
  return qt::localizedText(key);
}

QString LocalizerFunctions::message(const QString& key, const QJSValue& arguments) const {
  return qt::localizedMessage(key, namedArguments(arguments));
}

QFont LocalizerFunctions::font(const QFont& base) const {
  const StringList& locales = Localizer::sharedLocalizer().currentLocales();
  return locales.empty() ? base
                         : qt::toQFont(localizationUtilities::ovFontForLocale(
                               locales.front(), qt::fontHandle(base)));
}

LocalizerSingleton::LocalizerSingleton(QJSEngine& engine)
    : languages_(this), observer_([this] {
        languages_.refresh();
        Q_EMIT changed();
      }) {
  const QJSValue functions = engine.newQObject(new LocalizerFunctions);
  text_ = functions.property(QStringLiteral("text"));
  message_ = functions.property(QStringLiteral("message"));
  font_ = functions.property(QStringLiteral("font"));
}

LocalizerSingleton* LocalizerSingleton::create(QQmlEngine* /*qmlEngine*/, QJSEngine* engine) {
  return new LocalizerSingleton(*engine);
}

QStringList LocalizerSingleton::locales() {
  return qt::LanguageNotifier::locales();
}

bool LocalizerSingleton::rightToLeft() {
  return qt::currentLanguageIsRightToLeft();
}

void LocalizerSingleton::setLanguage(const QString& identifier) {
  setLanguages({identifier});
}

void LocalizerSingleton::setLanguages(const QStringList& identifiers) {
  std::vector<String> locales;
  for (const QString& identifier : identifiers) {
    locales.push_back(qt::fromQString(identifier));
  }
  Localizer::sharedLocalizer().updatePreferredLocales(StringList(locales), {});
}

void LocalizerSingleton::refreshLanguages() {
  languages_.refresh();
}

}  // namespace orvanta::quick
