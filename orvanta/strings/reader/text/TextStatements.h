#pragma once

#include <cstddef>

#include <orvanta/strings/StringTableBuilder.h>
#include <orvanta/strings/reader/text/StatementPlaces.h>
#include <orvanta/strings/reader/text/TextScanner.h>

namespace orvanta::strings {

/// The strict reader: reads the statements of a strings file up to the first damage.
///
///     file      = statements | "{" statements "}"
///     statement = key "=" value ";" | key ";"
///
/// where a key alone is its own value.
class TextStatements {
 public:
  enum class Braces { kNone, kOpen, kClosed, kLeft };

  /// Tells `places`, if it is not null, where the statement of each entry stands. The pointers are
  /// into the texts that are read.
  explicit TextStatements(StringTableBuilder& table, StatementPlaces* places = nullptr) noexcept
      : table_(table), places_(places) {}

  /// Reads from `at` on and returns where it stopped: the end of the text, or the beginning of a
  /// statement that is damaged or incomplete.
  [[nodiscard]] const char* read(TextScanner& scanner, const char* at);

  /// Reads one statement at `at` and returns its end; null, with nothing read, when it is damaged.
  /// A tentative entry loses to any other entry with its key.
  [[nodiscard]] const char* readTentatively(TextScanner& scanner, const char* at);

  /// Adds an entry that recovery found. False when an escape was a lone surrogate, which gives
  /// U+FFFD.
  bool add(const TextToken& key, const TextToken& value);

  /// The beginning of the last statement that `read` has read; null before the first.
  [[nodiscard]] const char* last() const noexcept { return last_; }

  [[nodiscard]] std::size_t count() const noexcept { return count_; }

  [[nodiscard]] Braces braces() const noexcept { return braces_; }
  /// Null before it was read.
  [[nodiscard]] const char* closingBrace() const noexcept { return closingBrace_; }
  /// Allows statements behind the closing brace.
  void leaveBraces() noexcept { braces_ = Braces::kLeft; }

  /// No entry fits into the table any more.
  [[nodiscard]] bool full() const noexcept { return full_; }

 private:
  // Both return the end of what they read, or null when it is damaged.
  [[nodiscard]] const char* readStatement(TextScanner& scanner, const char* at);
  [[nodiscard]] const char* readBrace(const char* at) noexcept;

  enum class Damaged { kRefuse, kAccept };
  // Adds an entry. False when its escapes are damaged, whether or not that was accepted, or when
  // the table is full.
  bool put(const TextToken& key, const TextToken& value, Damaged damaged);

  StringTableBuilder& table_;
  StatementPlaces* places_;
  const char* last_ = nullptr;
  std::size_t count_ = 0;
  Braces braces_ = Braces::kNone;
  const char* closingBrace_ = nullptr;
  bool full_ = false;
};

}  // namespace orvanta::strings
