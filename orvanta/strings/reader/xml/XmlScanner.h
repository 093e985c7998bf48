#pragma once

#include <cstddef>
#include <string_view>

namespace orvanta::strings {

enum class XmlPiece {
  kText,     ///< Character data, its references unresolved.
  kLiteral,  ///< The inside of a CDATA section.
  kOpening,  ///< <name ...> or <name .../>
  kClosing,  ///< </name>
  kBroken,   ///< A '<' that begins no complete piece.
  kEnd,      ///< The end of the document; repeats.
};

struct XmlToken {
  XmlPiece piece = XmlPiece::kEnd;
  std::size_t offset = 0;  ///< Where the token begins.
  std::string_view text;   ///< The characters, or the name of the tag.
  bool selfClosing = false;

  [[nodiscard]] bool opens(std::string_view name) const noexcept {
    return piece == XmlPiece::kOpening && text == name;
  }
  [[nodiscard]] bool closes(std::string_view name) const noexcept {
    return piece == XmlPiece::kClosing && text == name;
  }
};

/// XML tokenizer. Skips comments, processing instructions, the document type and attributes. Behind
/// a
/// '<' that begins no complete piece it continues with the next character, so that damage hides as
/// little as possible.
class XmlScanner {
 public:
  explicit XmlScanner(std::string_view utf8) : utf8_(utf8) {}

  [[nodiscard]] XmlToken next();

  /// Behind the token that was given last.
  [[nodiscard]] std::size_t position() const noexcept { return at_; }

  /// Makes `token` the next one again. At most once for each tag, which keeps the time linear.
  void giveBack(const XmlToken& token) noexcept { at_ = token.offset; }

 private:
  [[nodiscard]] XmlToken broken(std::size_t resumeAt);
  [[nodiscard]] XmlToken scanText();
  [[nodiscard]] XmlToken scanTag(XmlPiece piece, std::size_t nameAt);
  [[nodiscard]] XmlToken scanLiteral();
  bool skipPast(std::string_view begin, std::string_view end, bool& endMayFollow);
  bool skipDocumentType();
  bool skipInSubset();

  std::string_view utf8_;
  std::size_t at_ = 0;
  bool inProlog_ = true;
  // False once a search for that end has failed: it is not repeated.
  bool commentEndMayFollow_ = true;
  bool instructionEndMayFollow_ = true;
  bool literalEndMayFollow_ = true;
};

}  // namespace orvanta::strings
