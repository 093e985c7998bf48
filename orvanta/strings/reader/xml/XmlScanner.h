#pragma once

#include <cstddef>
#include <string_view>

namespace orvanta::strings {

enum class XmlPiece {
  kText,     ///< Character data, its references unresolved.
  kLiteral,  ///< The inside of a CDATA section.
  kOpening,  ///< <name ...> or <name .../>
  kClosing,  ///< </name>
  kBroken,   ///< A '<' that begins nothing whole.
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

/// Cuts an XML document into tokens. Comments, processing instructions and the document type are
/// passed over, attributes as well. Damage never hides more than necessary: behind a '<' that
/// begins nothing whole it goes on with what follows.
class XmlScanner {
 public:
  explicit XmlScanner(std::string_view utf8) : utf8_(utf8) {}

  [[nodiscard]] XmlToken next();

  /// Makes `token` the next one again. A tag should be given back once at most, which keeps the
  /// time linear.
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
  // False once a search ran to the end of the document in vain: it is not made again.
  bool commentEndMayFollow_ = true;
  bool instructionEndMayFollow_ = true;
  bool literalEndMayFollow_ = true;
};

}  // namespace orvanta::strings
