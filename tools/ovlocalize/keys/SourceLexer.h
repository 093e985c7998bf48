#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace ovlocalize {

/// One token of a C++, QML or JavaScript source.
struct SourceToken {
  enum class Kind { kEnd, kIdentifier, kString, kPunctuation, kOther };

  Kind kind = Kind::kEnd;
  std::string text;      ///< A string's characters, its escapes resolved; else as written.
  std::size_t line = 1;  ///< Counted from 1.

  [[nodiscard]] bool is(char punctuation) const noexcept {
    return kind == Kind::kPunctuation && text.size() == 1 && text.front() == punctuation;
  }
};

/// Takes a source apart as far as finding string literals in calls needs it. Comments and white
/// space are passed over. It knows C++ raw strings, encoding prefixes and literal suffixes, and
/// single-quoted and back-quoted strings of JavaScript. A single-quoted C++ character comes as a
/// string too; a back-quoted string with "${" comes as `kOther`. A literal that is not closed ends
/// with its line (a raw or back-quoted one with the file). Time is linear.
class SourceLexer {
 public:
  /// The source must outlive the lexer.
  explicit SourceLexer(std::string_view source) noexcept : source_(source) {}

  /// The next token; `kEnd` at the end and from then on.
  [[nodiscard]] SourceToken next();

 private:
  [[nodiscard]] char peek(std::size_t ahead = 0) const noexcept {
    return at_ + ahead < source_.size() ? source_[at_ + ahead] : '\0';
  }
  void advance() noexcept;
  void skipIdle() noexcept;
  void skipSuffix() noexcept;
  [[nodiscard]] std::string_view takeWord() noexcept;
  void readQuoted(SourceToken& token);
  void readRaw(SourceToken& token);
  void readEscape(std::string& text);
  [[nodiscard]] char32_t readNumber(unsigned base, std::size_t most) noexcept;

  std::string_view source_;
  std::size_t at_ = 0;
  std::size_t line_ = 1;
};

}  // namespace ovlocalize
