#pragma once

#include <cstddef>

#include <orvanta/strings/StringTableBuilder.h>
#include <orvanta/strings/reader/text/StatementPlaces.h>
#include <orvanta/strings/reader/text/TextScanner.h>

namespace orvanta::strings {

/// The statements of a strings file, as long as they are sound.
///
///     file      = statements | "{" statements "}"
///     statement = key "=" value ";" | key ";"
///
/// where a key alone is its own value.
class TextStatements {
 public:
  enum class Braces { kNone, kOpen, kClosed, kLeft };

  /// Tells `places`, if it is not null, where the key of each entry stands.
  explicit TextStatements(StringTableBuilder& table, StatementPlaces* places = nullptr) noexcept
      : table_(table), places_(places) {}

  /// Reads on from `at` and gives where it had to stop: the end of the text, or the beginning of
  /// what is no sound statement, or is not all there.
  [[nodiscard]] const char* read(TextScanner& scanner, const char* at);

  /// Reads one statement at `at` and gives its end; null, with nothing read, where none is sound.
  /// A tentative entry yields to any other with its key.
  [[nodiscard]] const char* readTentatively(TextScanner& scanner, const char* at);

  /// Adds an entry that was found another way. False when a surrogate of its escapes was alone, for
  /// which U+FFFD stands.
  bool add(const TextToken& key, const TextToken& value);

  /// The beginning of the last statement that `read` has read; null before the first.
  [[nodiscard]] const char* last() const noexcept { return last_; }

  [[nodiscard]] std::size_t count() const noexcept { return count_; }

  [[nodiscard]] Braces braces() const noexcept { return braces_; }
  /// Goes on behind the closing brace, where no statement is expected.
  void leaveBraces() noexcept { braces_ = Braces::kLeft; }

  /// No entry fits into the table any more.
  [[nodiscard]] bool full() const noexcept { return full_; }

 private:
  // Both give the end of what they read, null where it is not sound.
  [[nodiscard]] const char* readStatement(TextScanner& scanner, const char* at);
  [[nodiscard]] const char* readBrace(const char* at) noexcept;

  enum class Damaged { kRefuse, kAccept };
  // False when there is damage in the escapes, which is accepted or not, or when no entry fits.
  bool put(const TextToken& key, const TextToken& value, Damaged damaged);

  StringTableBuilder& table_;
  StatementPlaces* places_;
  const char* last_ = nullptr;
  std::size_t count_ = 0;
  Braces braces_ = Braces::kNone;
  bool full_ = false;
};

}  // namespace orvanta::strings
