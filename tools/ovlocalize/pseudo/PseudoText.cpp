#include "PseudoText.h"

#include <algorithm>
#include <array>
#include <vector>

#include <orvanta/messages/Placeholders.h>
#include <orvanta/messages/pattern/MessagePattern.h>
#include <orvanta/text/Utf8.h>

#include "../Addresses.h"
#include "../MessageShape.h"

namespace ovlocalize {

namespace {

constexpr std::array<std::string_view, 26> kSmall = {"å", "ƀ", "ç", "ð", "é", "ƒ", "ĝ", "ĥ", "î",
                                                     "ĵ", "ķ", "ļ", "ɱ", "ñ", "ö", "þ", "ɋ", "ŕ",
                                                     "š", "ţ", "û", "ṽ", "ŵ", "ẋ", "ý", "ž"};
constexpr std::array<std::string_view, 26> kCapital = {"Å", "Ɓ", "Ç", "Ð", "É", "Ƒ", "Ĝ", "Ĥ", "Î",
                                                       "Ĵ", "Ķ", "Ļ", "Ṁ", "Ñ", "Ö", "Þ", "Ɋ", "Ŕ",
                                                       "Š", "Ţ", "Û", "Ṽ", "Ŵ", "Ẋ", "Ý", "Ž"};

bool isLetter(char byte) {
  return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}

std::string_view accented(std::string_view character) {
  const char letter = character.front();
  if (character.size() > 1 || !isLetter(letter)) {
    return character;
  }
  return letter >= 'a' ? kSmall[static_cast<std::size_t>(letter - 'a')]
                       : kCapital[static_cast<std::size_t>(letter - 'A')];
}

bool isVowel(std::string_view character) {
  return character.size() == 1 &&
         std::string_view("aeiouAEIOU").find(character) != std::string_view::npos;
}

// A letter of any alphabet. By blocks: a few signs count as letters, no digit of ASCII does.
bool isOfWord(std::string_view character) {
  const char32_t code = orvanta::utf8::decode(character).codePoint;
  const bool isSign = (code >= 0x80 && code < 0xC0) || (code >= 0x2000 && code < 0x2C00) ||
                      (code >= 0x3000 && code < 0x3040) || code >= 0x1F000;
  return code < 0x80 ? isLetter(character.front()) : !isSign;
}

// The size of the tag or entity at the front; 0 when there is none.
std::size_t markupAt(std::string_view text) {
  const char next = text.size() > 1 ? text[1] : '\0';
  std::size_t end = std::string_view::npos;
  if (text.front() == '<' && (isLetter(next) || next == '/')) {
    end = text.find_first_of("<>", 1);
    end = end != std::string_view::npos && text[end] == '>' ? end : std::string_view::npos;
  } else if (text.front() == '&' && (isLetter(next) || next == '#')) {
    end = text.find_first_of("; &", 1);
    end = end != std::string_view::npos && text[end] == ';' ? end : std::string_view::npos;
  }
  return end == std::string_view::npos ? 0 : end + 1;
}

class PseudoWriter {
 public:
  explicit PseudoWriter(PseudoKind kind) : kind_(kind) {}

  std::string write(std::string_view text) {
    const MessageShape shape = messageShapeOf(text);
    if (shape.isMessage && !shape.error) {
      addMessage(text);
    } else {
      addFormat(text);
    }
    if (kind_ == PseudoKind::kRightToLeft) {
      return out_;
    }
    return "[" + out_ + std::string(static_cast<std::size_t>(owed_ / 100), '~') + "]";
  }

 private:
  void addMessage(std::string_view text) {
    orvanta::PatternParts parts;
    static_cast<void>(orvanta::parsePattern(text, parts));
    std::size_t begin = 0;
    for (const orvanta::PatternPart& part : parts) {
      if (part.kind == orvanta::PatternPart::Kind::text) {
        out_ += text.substr(begin, part.begin - begin);
        addText(part.in(text));
        begin = part.begin + part.size;
      }
    }
    out_ += text.substr(begin);
  }

  void addFormat(std::string_view text) {
    std::size_t begin = 0;
    orvanta::PlaceholderReader placeholders(text);
    while (const auto found = placeholders.next()) {
      addText(text.substr(begin, found->begin - begin));
      out_ += text.substr(found->begin, found->size);
      begin = found->begin + found->size;
    }
    addText(text.substr(begin));
  }

  // Text without placeholders.
  void addText(std::string_view text) {
    std::size_t begin = 0;
    for (std::size_t at = text.find_first_of("<&"); at != std::string_view::npos;
         at = text.find_first_of("<&", at)) {
      const std::size_t size = markupAt(text.substr(at));
      if (size > 0) {
        addWords(text.substr(begin, at - begin));
        out_ += text.substr(at, size);
        begin = at + size;
      }
      at += std::max<std::size_t>(size, 1);
    }
    addWords(text.substr(begin));
  }

  void addWords(std::string_view text) {
    kind_ == PseudoKind::kAccented ? addAccented(text) : addRightToLeft(text);
  }

  // Vowels are repeated until the text is so much longer; what is still owed goes to its end.
  void addAccented(std::string_view text) {
    constexpr int kLongerInPercent = 40;
    while (!text.empty()) {
      const std::string_view character = text.substr(0, orvanta::utf8::decode(text).length);
      owed_ += kLongerInPercent;
      out_ += accented(character);
      for (; owed_ >= 100 && isVowel(character); owed_ -= 100) {
        out_ += accented(character);
      }
      text.remove_prefix(character.size());
    }
  }

  void addRightToLeft(std::string_view text) {
    constexpr std::string_view kBefore = "\u200F\u202E";
    constexpr std::string_view kBehind = "\u202C\u200F";
    bool isInWord = false;
    while (!text.empty()) {
      const std::string_view character = text.substr(0, orvanta::utf8::decode(text).length);
      if (isOfWord(character) != isInWord) {
        out_ += isInWord ? kBehind : kBefore;
        isInWord = !isInWord;
      }
      out_ += character;
      text.remove_prefix(character.size());
    }
    out_ += isInWord ? kBehind : "";
  }

  PseudoKind kind_;
  std::string out_;
  int owed_ = 50;  // Hundredths of a character; rounds to the nearest.
};

}  // namespace

bool isPseudoLanguage(std::string_view language) {
  return language.ends_with("-XA") || language.ends_with("-XB");
}

std::string pseudoText(std::string_view text, PseudoKind kind) {
  if (text.empty() || isAddress(text)) {
    return std::string(text);
  }
  return PseudoWriter(kind).write(text);
}

}  // namespace ovlocalize
