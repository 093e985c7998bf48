#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include <orvanta/strings/reader/text/DamagedStatement.h>
#include <orvanta/strings/reader/text/StatementFinder.h>
#include <orvanta/strings/reader/text/TextProblems.h>
#include <orvanta/strings/reader/text/TextStatements.h>

namespace orvanta::strings {

/// Error recovery. Takes over at a damaged statement, recovers what it can, reports the damage, and
/// finds where reading can continue.
///
/// `StatementFinder` finds the next statement; the damaged one reaches to there, and `salvage`
/// recovers its parts. A value that is no text loses its statement, and nothing inside it is read.
///
/// Statements that may still belong to a lost one are read tentatively: their entries lose to any
/// other entry with the same key.
class TextRecovery {
 public:
  /// `text` is the whole text. All arguments must outlive this.
  TextRecovery(std::string_view text, TextScanner& scanner, TextStatements& statements,
               TextProblems& problems)
      : scanner_(scanner),
        statements_(statements),
        problems_(problems),
        budget_(text.size()),
        finder_(scanner, budget_) {}

  /// Recovers at `at`, where `statements` stopped, and returns where it can continue. `previous` is
  /// the beginning of the statement before `at` if that was sound, else null.
  [[nodiscard]] const char* recover(const char* at, const char* previous);

  /// Reports what is wrong with the end of the text.
  void finish();

  /// What belonged to no statement.
  struct Loss {
    std::size_t bytes = 0;
    std::size_t noise = 0;  ///< How many of them are control characters or invalid.
  };
  [[nodiscard]] const Loss& loss() const noexcept { return loss_; }

  /// Whether a statement was lost only because its value is no text.
  [[nodiscard]] bool sawOtherValue() const noexcept { return sawOtherValue_; }

 private:
  /// Up to where the following statements may belong to a lost one.
  enum class Doubt {
    kNone,
    kOneStatement,
    kWhileIndented,  ///< By more than the lost statement.
    kUntilBrace,
  };

  [[nodiscard]] const char* recoverHere(const char* at, const char* previous);
  [[nodiscard]] const char* recoverMark(const char* at);
  [[nodiscard]] const char* tableBrace(const char* at);
  [[nodiscard]] const char* recoverStatement(const DamagedStatement& statement,
                                             const char* previous);
  [[nodiscard]] const char* passCollection(const DamagedStatement& statement);
  [[nodiscard]] bool isWholeText(const DamagedStatement& statement, const char* end) const noexcept;
  [[nodiscard]] bool extendPrevious(const char* begin, const char* end, const char* previous);

  [[nodiscard]] const char* nextStatement(const char* from, const DamagedStatement& statement);
  [[nodiscard]] const char* nextBesideCollection(const char* from,
                                                 const DamagedStatement& statement);
  [[nodiscard]] bool endsDoubt(const char* at);
  [[nodiscard]] const char* readInDoubt(const char* at);
  [[nodiscard]] const char* readByLine(const char* at);
  [[nodiscard]] std::optional<std::size_t> indentation(const char* at) noexcept;

  void add(const TextToken& key, const TextToken& value);
  void reportStrays(const std::vector<Stray>& strays, const char* before);
  void lose(const char* begin, const char* end, const char* reported);
  [[nodiscard]] bool expectsBrace() const noexcept {
    return statements_.braces() == TextStatements::Braces::kOpen;
  }

  TextScanner& scanner_;
  TextStatements& statements_;
  TextProblems& problems_;
  LookAheadBudget budget_;
  StatementFinder finder_;
  Doubt doubt_ = Doubt::kNone;
  std::size_t doubtIndentation_ = 0;
  Loss loss_;
  bool sawOtherValue_ = false;
};

}  // namespace orvanta::strings
