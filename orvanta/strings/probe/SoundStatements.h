#pragma once

#include <cstddef>
#include <string_view>

#include <orvanta/strings/probe/QuoteIndex.h>
#include <orvanta/strings/reader/text/TextCharacters.h>

namespace orvanta::strings {

/// Splits a text into statements, without transcoding it, as long as they are of the usual kind: a
/// key and a value in double quotes, or a key alone, with ASCII white space and comments between
/// them.
///
/// This is a subset of the grammar that the reader of text tables (TextStatements.h) accepts. The
/// reader finds the same statements in it.
template <typename Text>
class SoundStatements {
 public:
  /// The bytes that `text` views must outlive this.
  explicit SoundStatements(Text text) noexcept : text_(text), quotes_(text) {}

  /// Advances to the next statement. False at the end of the text, and before anything that is not
  /// a statement of the usual kind.
  [[nodiscard]] bool next() noexcept {
    const std::size_t key = skipIdle(end_);
    if (key == text_.size() && !text_.isTorn()) {
      begin_ = end_;
      end_ = key;
      isAtEnd_ = true;
      return false;
    }
    const std::size_t end = statementEnd(key);
    begin_ = end_;
    end_ = end == kNone ? begin_ : end;
    return end != kNone;
  }

  /// Whether `next` reached the end of the text.
  [[nodiscard]] bool isAtEnd() const noexcept { return isAtEnd_; }

  /// The range of the current statement, in units of the text. It begins where the previous one
  /// ends, so it includes the white space and comments before the key.
  [[nodiscard]] std::size_t begin() const noexcept { return begin_; }
  [[nodiscard]] std::size_t end() const noexcept { return end_; }

 private:
  static constexpr std::size_t kNone = QuoteIndex<Text>::kNone;

  // The end of the statement at `key`; `kNone` if it is not of the usual kind.
  [[nodiscard]] std::size_t statementEnd(std::size_t key) noexcept {
    std::size_t at = stringEnd(key);
    if (at == kNone) {
      return kNone;
    }
    constexpr std::string_view kUsualSign = " = ";
    if (text_.hasAt(at, kUsualSign)) {
      at += kUsualSign.size();
    } else {
      at = skipIdle(at);
      if (isAt(at, ';')) {
        return at + 1;
      }
      if (!isAt(at, '=')) {
        return kNone;
      }
      at = skipIdle(at + 1);
    }
    at = stringEnd(at);
    if (at == kNone) {
      return kNone;
    }
    at = skipIdle(at);
    return isAt(at, ';') ? at + 1 : kNone;
  }

  [[nodiscard]] bool isAt(std::size_t at, char ascii) const noexcept {
    return at < text_.size() && text_.asciiAt(at) == ascii;
  }

  // The index after the closing quote of the string that begins at `at`; `kNone` if none does.
  [[nodiscard]] std::size_t stringEnd(std::size_t at) noexcept {
    if (!quotes_.takeAt(at)) {
      return kNone;
    }
    const std::size_t close = quotes_.peek();
    quotes_.drop();
    return close == kNone ? kNone : close + 1;
  }

  // The index after white space and comments. Stops before a comment that is not closed, and before
  // one that contains "/*".
  [[nodiscard]] std::size_t skipIdle(std::size_t at) const noexcept {
    while (at < text_.size()) {
      const char character = text_.asciiAt(at);
      if (isKind(character, kBlank)) {
        ++at;
      } else if (character == '/') {
        const std::size_t end = commentEnd(at);
        if (end == kNone) {
          return at;
        }
        at = end;
      } else {
        return at;
      }
    }
    return at;
  }

  [[nodiscard]] std::size_t commentEnd(std::size_t at) const noexcept {
    if (isAt(at + 1, '*')) {
      for (at += 2; at + 1 < text_.size() && !text_.hasAt(at, "/*"); ++at) {
        if (text_.hasAt(at, "*/")) {
          return at + 2;
        }
      }
      return kNone;
    }
    if (!isAt(at + 1, '/')) {
      return kNone;
    }
    while (at < text_.size() && !text_.breaksLineAt(at)) {
      ++at;
    }
    return at;
  }

  Text text_;
  QuoteIndex<Text> quotes_;
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
  bool isAtEnd_ = false;
};

}  // namespace orvanta::strings
