#include <QLocale>
#include <algorithm>
#include <utility>

#include <orvanta/qt/Text.h>
#include <orvanta/qt/platform/QtLocaleData.h>

namespace orvanta::qt {

namespace {

QString digitsOf(const QLocale& locale, std::string_view digits) {
  const char32_t zero = locale.zeroDigit().toUcs4().value(0, U'0');
  QString text;
  for (const char digit : digits) {
    const char32_t character = zero + static_cast<char32_t>(digit - '0');
    text += QString::fromUcs4(&character, 1);
  }
  return text;
}

class QtLocaleData final : public platform::LocaleData {
 public:
  explicit QtLocaleData(std::shared_ptr<platform::LocaleData> other) : other_(std::move(other)) {}

  StringList preferredLanguages() const override { return other_->preferredLanguages(); }

  platform::LanguageDirection characterDirectionForLanguage(const String& language) const override {
    return other_->characterDirectionForLanguage(language);
  }

  String lowercaseString(const String& text) const override {
    return other_->lowercaseString(text);
  }

  std::shared_ptr<platform::Calendar> currentCalendar() const override {
    return other_->currentCalendar();
  }

  std::string localizedNumber(std::string_view plainDigits, const String& locale) const override {
    const QLocale qt(toQString(locale));
    QString text;
    if (plainDigits.starts_with('-')) {
      text += qt.negativeSign();
      plainDigits.remove_prefix(1);
    }
    const std::string_view whole = plainDigits.substr(0, plainDigits.find('.'));
    bool fits = false;
    const qulonglong number =
        QByteArrayView(whole.data(), static_cast<qsizetype>(whole.size())).toULongLong(&fits);
    text += fits ? qt.toString(number) : digitsOf(qt, whole);
    if (whole.size() < plainDigits.size()) {
      text += qt.decimalPoint() + digitsOf(qt, plainDigits.substr(whole.size() + 1));
    }
    return text.toStdString();
  }

 private:
  std::shared_ptr<platform::LocaleData> other_;
};

}  // namespace

std::shared_ptr<platform::LocaleData> makeQtLocaleData(
    std::shared_ptr<platform::LocaleData> other) {
  return std::make_shared<QtLocaleData>(std::move(other));
}

}  // namespace orvanta::qt
