#include <memory_resource>
#include <optional>
#include <random>

#include <gtest/gtest.h>
#include <unicode/msgfmt.h>
#include <unicode/numfmt.h>
#include <unicode/uchar.h>

#include <orvanta/messages/pattern/MessageFormat.h>
#include <orvanta/messages/pattern/PatternCharacters.h>
#include <orvanta/messages/pattern/TextDirection.h>
#include <orvanta/standard/StandardLocaleData.h>
#include <orvanta/text/Utf8.h>

namespace orvanta {
namespace {

using platform::LanguageDirection;

// Numbers as ICU writes them, so that whole messages can be compared.
class IcuNumbers final : public platform::LocaleData {
 public:
  StringList preferredLanguages() const override { return StringList::emptyList(); }
  LanguageDirection characterDirectionForLanguage(const String& language) const override {
    return standard_->characterDirectionForLanguage(language);
  }
  String lowercaseString(const String& text) const override { return text; }
  std::shared_ptr<platform::Calendar> currentCalendar() const override { return nullptr; }
  std::string localizedNumber(std::string_view plainDigits, const String& locale) const override {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::NumberFormat> format(
        icu::NumberFormat::createInstance(icu::Locale(locale.str().c_str()), status));
    icu::UnicodeString number;
    format->format(icu::StringPiece(plainDigits.data(), static_cast<int>(plainDigits.size())),
                   number, nullptr, status);
    std::string text;
    return number.toUTF8String(text);
  }

 private:
  std::shared_ptr<platform::LocaleData> standard_ = standard::makeLocaleData({});
};

// Generates patterns with a few arguments. About half of them are damaged.
class Generator {
 public:
  std::string pattern() {
    std::string text = message(0, false);
    for (int edits = number(2) == 0 ? number(1, 3) : 0; edits > 0; --edits) {
      damage(text);
    }
    return text;
  }

  std::vector<MessageArgument> arguments() {
    std::vector<MessageArgument> all;
    for (const char* name : {"count", "total", "0", "1"}) {
      if (number(10) > 0) {
        all.emplace_back(name, numberValue());
      }
    }
    for (const char* name : {"who", "kind"}) {
      if (number(10) > 0) {
        all.emplace_back(name, pick({"Ada", "female", "male", "other", "", "{count}", "it's '{'",
                                     "#", "ليلى", "12:30", "two words", "日本"}));
      }
    }
    return all;
  }

  const char* locale() {
    return pick({"en", "ar", "fr", "ru", "pl", "cy", "lt", "lv", "de", "ga", "sl", "ja", "ur-PK",
                 "sv", "it", "pt-PT", "kw", "fa"});
  }

 private:
  int number(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }
  int number(int below) { return number(0, below - 1); }
  const char* pick(const std::vector<const char*>& choices) {
    return choices[static_cast<std::size_t>(number(static_cast<int>(choices.size())))];
  }

  MessageValue numberValue() {
    switch (number(4)) {
      case 0:
        return number(0, 12);
      case 1:
        return number(-1500, 2000000);
      case 2:
        return std::int64_t{number(1, 1000000)} * 1000000;
      default:
        return number(-30000, 30000) / 1024.0 + 1e-9;
    }
  }

  std::string message(int depth, bool hasNumber) {
    std::string text;
    for (int pieces = number(4); pieces >= 0; --pieces) {
      switch (number(depth < 3 ? 8 : 5)) {
        case 0:
          text +=
              std::string("{") + pick({"count", "who", "0", "1", " total ", "missing", "7"}) + "}";
          break;
        case 1:
          text += hasNumber || number(4) == 0 ? "#" : " and ";
          break;
        case 2:
          text += pick({"'{'", "'{quoted '' text}'", "it's", "''", "'#'", "'#", "'}'", "' "});
          break;
        case 3:
        case 4:
          text += pick({"items", " \u00FCber ", "ملفات", " = ", "100%", "|", "日", " "});
          break;
        case 5:
          text += choice("select", pick({"who", "kind"}), depth);
          break;
        default:
          text += choice(pick({"plural", "plural", "Plural", "selectordinal"}),
                         pick({"count", "total", "0", "1", "absent"}), depth);
      }
    }
    return text;
  }

  std::string choice(const std::string& type, const std::string& name, int depth) {
    const bool isSelect = type == "select";
    std::string text = "{" + name + "," + pick({"", " "}) + type + ",";
    if (!isSelect && number(4) == 0) {
      text += std::string(" offset:") + pick({"1", " 2", "-1", "0.5", "1e1"}) + " ";
    }
    for (int branches = number(4); branches > 0; --branches) {
      text += isSelect ? pick({" female ", "male", " other", " Ada"})
                       : pick({" one ", " few", " =0 ", " =1", " =-1", " many ", " two", " =1.5",
                               " zero ", " other", " odd"});
      text += "{" + message(depth + 1, !isSelect) + "}";
    }
    return text + " other {" + message(depth + 1, !isSelect) + "}}";
  }

  void damage(std::string& text) {
    auto at = static_cast<std::size_t>(number(static_cast<int>(text.size()) + 1));
    while (at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80) {
      --at;
    }
    if (number(2) == 0 && at < text.size()) {
      text.erase(at, utf8::decode(std::string_view(text).substr(at)).length);
    } else {
      text.insert(at, pick({"{", "}", "'", ",", "#", " ", ":", "=", "+", "a", "0", "\u200E",
                            "\u3000", "\u2190", "other", "offset:1 ", "{1}"}));
    }
  }

  std::mt19937 random_{20240229};
};

icu::Formattable toIcu(const MessageValue& value) {
  switch (value.kind()) {
    case MessageValue::Kind::signedInteger:
      return {static_cast<std::int64_t>(value.signedInteger())};
    case MessageValue::Kind::real:
      return {value.real()};
    default:
      return {icu::UnicodeString::fromUTF8(std::string(value.text()))};
  }
}

// Absent when ICU rejects the pattern.
std::optional<std::string> icuFormat(const std::string& pattern, const char* locale,
                                     const std::vector<MessageArgument>& arguments) {
  UErrorCode status = U_ZERO_ERROR;
  const icu::MessageFormat format(icu::UnicodeString::fromUTF8(pattern), icu::Locale(locale),
                                  status);
  if (U_FAILURE(status)) {
    return std::nullopt;
  }
  std::vector<icu::UnicodeString> names;
  std::vector<icu::Formattable> values;
  for (const MessageArgument& argument : arguments) {
    names.push_back(icu::UnicodeString::fromUTF8(std::string(argument.name())));
    values.push_back(toIcu(argument.value()));
  }
  icu::UnicodeString text;
  format.format(names.data(), values.data(), static_cast<int>(names.size()), text, status);
  EXPECT_TRUE(U_SUCCESS(status)) << pattern << ": " << u_errorName(status);
  std::string utf8;
  return text.toUTF8String(utf8);
}

std::optional<std::string> ourFormat(const std::string& pattern, const char* locale,
                                     const std::vector<MessageArgument>& arguments) {
  IcuNumbers numbers;
  PatternParts parts;
  if (parsePattern(pattern, parts)) {
    return std::nullopt;
  }
  std::pmr::string text;
  formatMessage(pattern, parts, arguments, MessageLanguage(locale, numbers), text);
  return std::string(text);
}

std::string withoutIsolates(std::string text) {
  for (const std::string_view isolate : {"\u2068", "\u2069"}) {
    for (std::size_t at = 0; (at = text.find(isolate, at)) != std::string::npos;) {
      text.erase(at, isolate.size());
    }
  }
  return text;
}

TEST(MessageFormat, AgreesWithIcuOnGeneratedPatterns) {
  Generator generator;
  std::size_t formatted = 0;
  std::size_t refused = 0;
  for (int round = 0; round < 20000; ++round) {
    const std::string pattern = generator.pattern();
    const std::vector<MessageArgument> arguments = generator.arguments();
    const char* locale = generator.locale();
    const auto icus = icuFormat(pattern, locale, arguments);
    auto ours = ourFormat(pattern, locale, arguments);
    if (ours) {
      ours = withoutIsolates(*ours);
    }
    ASSERT_EQ(ours, icus) << round << " in " << locale << ": " << pattern;
    (ours ? formatted : refused) += 1;
  }
  EXPECT_GT(formatted, 8000U);
  EXPECT_GT(refused, 8000U);
}

TEST(PatternCharacters, AreThoseOfUnicode) {
  for (char32_t character = 0; character <= 0x10FFFF; ++character) {
    const auto icus = static_cast<UChar32>(character);
    ASSERT_EQ(isPatternSyntax(character), u_hasBinaryProperty(icus, UCHAR_PATTERN_SYNTAX) != 0)
        << std::hex << icus;
    ASSERT_EQ(isPatternWhiteSpace(character),
              u_hasBinaryProperty(icus, UCHAR_PATTERN_WHITE_SPACE) != 0)
        << std::hex << icus;
  }
}

// Every character of a strong direction is isolated in a message of the other one.
TEST(TextDirection, MissesNoStrongCharacterOfUnicode) {
  for (char32_t character = 0; character <= 0x10FFFF; ++character) {
    const UCharDirection direction = u_charDirection(static_cast<UChar32>(character));
    const bool isLeftToRight = direction == U_LEFT_TO_RIGHT;
    if (!isLeftToRight && direction != U_RIGHT_TO_LEFT && direction != U_RIGHT_TO_LEFT_ARABIC) {
      continue;
    }
    std::string text;
    utf8::append(text, character);
    ASSERT_TRUE(mayDisturbDirection(
        text, isLeftToRight ? LanguageDirection::rightToLeft : LanguageDirection::leftToRight))
        << std::hex << static_cast<std::uint32_t>(character);
  }
}

}  // namespace
}  // namespace orvanta
