#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include <orvanta/strings/reader/text/TextLandmarks.h>
#include <orvanta/strings/reader/text/TextProblems.h>
#include <orvanta/strings/reader/text/TextStatements.h>

namespace orvanta::strings {

/// Takes over where a statement is not sound: saves of it what can be saved, reports it, and finds
/// the place where reading can go on.
///
/// What it saves:
/// - A value with bare quotes inside: it ends at the `";` that ends a line.
/// - A string that is never closed: it ends with its line if statements follow.
/// - A statement without its semicolon, if the text ends or another statement follows.
/// - A statement with control characters between its tokens.
/// Whatever else is wrong costs the statement. So does a value that is no text.
class TextRecovery {
 public:
  /// All of `text` is there; the others must outlive this.
  TextRecovery(std::string_view text, TextScanner& scanner, TextStatements& statements,
               TextProblems& problems);

  /// Goes on at `at`, where `statements` stopped; `previous` is the beginning of the statement
  /// before it, if that was sound, else null. Gives the place for `statements` to go on at.
  [[nodiscard]] const char* recover(const char* at, const char* previous);

  /// Reports what is wrong with the end of the text.
  void finish();

  /// How many bytes belonged to no statement.
  [[nodiscard]] std::size_t lostBytes() const noexcept { return lostBytes_; }

  /// Whether a statement was lost only because its value is no text.
  [[nodiscard]] bool sawOtherValue() const noexcept { return sawOtherValue_; }

 private:
  // A statement as far as it could be read.
  struct Damaged {
    const char* begin;
    const char* previous;
    TextToken key = {};
    const char* value = nullptr;  // Where the value begins.
  };
  struct Stray {
    const char* at;
    const char* message;
  };

  [[nodiscard]] const char* recoverHere(const char* at, const char* previous);
  [[nodiscard]] const char* recoverMark(const char* at);
  [[nodiscard]] const char* recoverStatement(Damaged statement);
  [[nodiscard]] const char* recoverValue(const Damaged& statement);
  [[nodiscard]] const char* recoverPlain(const Damaged& statement, const TextToken& value);
  [[nodiscard]] const char* recoverString(const Damaged& statement, const TextToken& value);
  [[nodiscard]] const char* recoverOpenString(const Damaged& statement, const TextToken& value);
  [[nodiscard]] const char* takeLine(const Damaged& statement, const char* head);
  [[nodiscard]] const char* passCollection(const Damaged& statement);
  [[nodiscard]] const char* giveUp(const Damaged& statement, const char* at, const char* message);
  [[nodiscard]] const char* extendPrevious(const Damaged& statement);

  [[nodiscard]] bool isSemicolonMissing(const char* valueEnd, const char* next);
  [[nodiscard]] const char* statementInLine(const char* at);
  [[nodiscard]] bool isStatementInLine(const char* at, const char* lineEnd);
  // These move over the text and take note of how far it was read.
  [[nodiscard]] const char* skipIdle(const char* at);
  [[nodiscard]] TextToken readToken(const char* at);

  void reportStrays(const char* before);

  TextScanner& scanner_;
  TextStatements& statements_;
  TextProblems& problems_;
  LookAheadBudget budget_;
  TextLandmarks landmarks_;
  const char* end_;
  const char* readTo_;  // How far the statement at hand was read, however it ended.
  // What is wrong between the tokens of the statement at hand, reported if that is saved.
  std::vector<Stray> strays_;
  std::size_t lostBytes_ = 0;
  bool sawOtherValue_ = false;
};

}  // namespace orvanta::strings
