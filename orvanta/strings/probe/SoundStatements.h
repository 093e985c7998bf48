#pragma once

#include <cstddef>
#include <string_view>

#include <orvanta/strings/probe/QuoteIndex.h>
#include <orvanta/strings/reader/text/TextCharacters.h>

namespace orvanta::strings {

/// Where the statements of a text stand, as long as all of them are of the usual kind: a key and a
/// value in double quotes, or such a key alone, between them white space of ASCII and comments.
///
/// The reader of text tables (TextStatements.h) takes what is passed here for the same statements:
/// a narrower grammar than its own, read without transcoding anything.
template <typename Text>
class SoundStatements {
 public:
  /// The text must outlive this.
  explicit SoundStatements(Text text) noexcept : text_(text), quotes_(text) {}

  /// Goes on behind the next statement. False at the end of the text and where something else than
  /// such a statement stands; what follows is not known then.
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

  /// Whether `next` found nothing else than the end of the text.
  [[nodiscard]] bool isAtEnd() const noexcept { return isAtEnd_; }

  /// The last statement, with what stands before it from the one before; in units.
  [[nodiscard]] std::size_t begin() const noexcept { return begin_; }
  [[nodiscard]] std::size_t end() const noexcept { return end_; }

 private:
  static constexpr std::size_t kNone = QuoteIndex<Text>::kNone;

  // `kNone` where no statement of the usual kind begins at `key`.
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

  // Behind the string that a quote opens at `at`.
  [[nodiscard]] std::size_t stringEnd(std::size_t at) noexcept {
    if (!quotes_.takeAt(at)) {
      return kNone;
    }
    const std::size_t close = quotes_.peek();
    quotes_.drop();
    return close == kNone ? kNone : close + 1;
  }

  // Stops at a comment without an end and at one that seems to hold another one.
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
