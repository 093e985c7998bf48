// The two declare the calls of POSIX as well.
#include <clocale>
#include <cwctype>

#include <orvanta/standard/LowerCase.h>
#include <orvanta/text/Utf8.h>

namespace orvanta::standard {

namespace {

static_assert(sizeof(wchar_t) >= sizeof(char32_t), "towlower takes whole characters");

// Never freed: text may be lower-cased until the process ends.
locale_t unicodeLocale() {
  static const locale_t locale = ::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
  return locale;
}

char32_t lowerCased(char32_t character) {
  if (character < 0x80) {
    return character >= 'A' && character <= 'Z' ? character + ('a' - 'A') : character;
  }
  const locale_t locale = unicodeLocale();
  return locale == nullptr
             ? character
             : static_cast<char32_t>(::towlower_l(static_cast<wint_t>(character), locale));
}

}  // namespace

std::string lowerCased(std::string_view text) {
  constexpr char32_t kCapitalIWithDot = 0x0130;
  constexpr std::string_view kSmallIWithDot = "i\u0307";
  std::string lower;
  lower.reserve(text.size());
  while (!text.empty()) {
    const utf8::Decoded next = utf8::decode(text);
    if (!next.valid) {
      lower.append(text.substr(0, next.length));
    } else if (next.codePoint == kCapitalIWithDot) {
      lower.append(kSmallIWithDot);
    } else {
      utf8::append(lower, lowerCased(next.codePoint));
    }
    text.remove_prefix(next.length);
  }
  return lower;
}

}  // namespace orvanta::standard
