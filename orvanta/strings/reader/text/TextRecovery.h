#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include <orvanta/strings/reader/text/DamagedStatement.h>
#include <orvanta/strings/reader/text/StatementFinder.h>
#include <orvanta/strings/reader/text/TextProblems.h>
#include <orvanta/strings/reader/text/TextStatements.h>

namespace orvanta::strings {

/// Takes over where a statement is not sound: saves of it what can be saved, reports it, and finds
/// the place where reading can go on.
///
/// A damaged statement reaches to the next one, as `StatementFinder` finds it; `salvage` judges
/// what stands between the two. A value that is no text costs its statement, and nothing inside it
/// is read.
///
/// Where what follows might still belong to a lost statement, it is read tentatively: its entries
/// yield to every other one with their key.
class TextRecovery {
 public:
  /// All of `text` is there; the others must outlive this.
  TextRecovery(std::string_view text, TextScanner& scanner, TextStatements& statements,
               TextProblems& problems)
      : scanner_(scanner),
        statements_(statements),
        problems_(problems),
        budget_(text.size()),
        finder_(scanner, budget_) {}

  /// Goes on at `at`, where `statements` stopped; `previous` is the beginning of the statement
  /// before it if that was sound, else null. Gives the place for `statements` to go on at.
  [[nodiscard]] const char* recover(const char* at, const char* previous);

  /// Reports what is wrong with the end of the text.
  void finish();

  /// What belonged to no statement.
  struct Loss {
    std::size_t bytes = 0;
    std::size_t noise = 0;  ///< How many of them stand for no character of a text.
  };
  [[nodiscard]] const Loss& loss() const noexcept { return loss_; }

  /// Whether a statement was lost only because its value is no text.
  [[nodiscard]] bool sawOtherValue() const noexcept { return sawOtherValue_; }

 private:
  /// How long what follows may belong to a lost statement.
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
