#include <QReadLocker>
#include <QWriteLocker>
#include <string_view>
#include <utility>

#include <orvanta/locale/Localizer.h>
#include <orvanta/qt/CurrentDirection.h>
#include <orvanta/qt/LanguageChangeEvent.h>
#include <orvanta/qt/Text.h>
#include <orvanta/qt/Translator.h>

namespace orvanta::qt {

namespace {

// Qt asks for this text to learn the direction of layouts.
bool isLayoutDirection(const char* context, std::string_view sourceText) {
  return sourceText == "QT_LAYOUT_DIRECTION" && context != nullptr &&
         std::string_view(context) == "QGuiApplication";
}

}  // namespace

Translator::Translator(QObject* parent) : Translator(KeyMapping(), parent) {}

Translator::Translator(KeyMapping mapping, QObject* parent)
    : QTranslator(parent), mapping_(std::move(mapping)), observer_([this] {
        takeTexts();
        postLanguageChange();
      }) {
  takeTexts();
}

void Translator::takeTexts() {
  TextSnapshot now = texts(Localizer::sharedLocalizer());
  const QWriteLocker locker(&lock_);
  texts_ = std::move(now);
  layoutDirection_ = currentLanguageIsRightToLeft() ? QStringLiteral("RTL") : QStringLiteral("LTR");
}

QString Translator::translate(const char* context, const char* sourceText,
                              const char* disambiguation, int n) const {
  if (sourceText == nullptr) {
    return {};
  }
  if (isLayoutDirection(context, sourceText)) {
    const QReadLocker locker(&lock_);
    return layoutDirection_;
  }
  if (mapping_) {
    const std::string key = mapping_(context, sourceText, disambiguation);
    return key.empty() ? QString() : textFor(key, n);
  }
  return textFor(sourceText, n);
}

QString Translator::textFor(std::string_view key, int n) const {
  const QReadLocker locker(&lock_);
  const String text = texts_.textForKey(key);
  return n < 0 || text.isAbsent() ? toQString(text)
                                  : toQString(texts_.localizedMessageForKey(key, {{"n", n}}));
}

bool Translator::isEmpty() const {
  return false;
}

}  // namespace orvanta::qt
