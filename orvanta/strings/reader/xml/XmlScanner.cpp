#include <algorithm>

#include <orvanta/strings/reader/xml/XmlScanner.h>

namespace orvanta::strings {

namespace {

constexpr std::string_view kCommentBegin = "<!--";
constexpr std::string_view kCommentEnd = "-->";
constexpr std::string_view kInstructionBegin = "<?";
constexpr std::string_view kInstructionEnd = "?>";
constexpr std::string_view kLiteralBegin = "<![CDATA[";
constexpr std::string_view kLiteralEnd = "]]>";
constexpr std::string_view kDocumentTypeBegin = "<!DOCTYPE";

bool beginsName(char character) noexcept {
  return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
         character == '_' || character == ':' || static_cast<unsigned char>(character) >= 0x80;
}

bool continuesName(char character) noexcept {
  return beginsName(character) || (character >= '0' && character <= '9') || character == '-' ||
         character == '.';
}

}  // namespace

XmlToken XmlScanner::next() {
  while (at_ < utf8_.size()) {
    const std::string_view rest = utf8_.substr(at_);
    if (rest.front() != '<') {
      return scanText();
    }
    if (rest.starts_with(kCommentBegin)) {
      if (!skipPast(kCommentBegin, kCommentEnd, commentEndMayFollow_)) {
        return broken(at_ + kCommentBegin.size());
      }
    } else if (rest.starts_with(kInstructionBegin)) {
      if (!skipPast(kInstructionBegin, kInstructionEnd, instructionEndMayFollow_)) {
        return broken(at_ + kInstructionBegin.size());
      }
    } else if (rest.starts_with(kLiteralBegin)) {
      return scanLiteral();
    } else if (inProlog_ && rest.starts_with(kDocumentTypeBegin)) {
      if (!skipDocumentType()) {
        return broken(at_ + kDocumentTypeBegin.size());
      }
    } else if (rest.size() > 1 && beginsName(rest[1])) {
      return scanTag(XmlPiece::kOpening, at_ + 1);
    } else if (rest.size() > 2 && rest[1] == '/' && beginsName(rest[2])) {
      return scanTag(XmlPiece::kClosing, at_ + 2);
    } else {
      return broken(at_ + 1);
    }
  }
  return {XmlPiece::kEnd, utf8_.size(), {}, false};
}

XmlToken XmlScanner::broken(std::size_t resumeAt) {
  const XmlToken token{XmlPiece::kBroken, at_, {}, false};
  at_ = resumeAt;
  return token;
}

XmlToken XmlScanner::scanText() {
  const std::size_t end = std::min(utf8_.find('<', at_), utf8_.size());
  const XmlToken token{XmlPiece::kText, at_, utf8_.substr(at_, end - at_), false};
  at_ = end;
  return token;
}

// A '>' in a quoted attribute belongs to the attribute. A '<' is not allowed in a tag: the tag is
// unfinished, and the next one begins there.
XmlToken XmlScanner::scanTag(XmlPiece piece, std::size_t nameAt) {
  inProlog_ = false;
  std::size_t end = nameAt;
  while (end < utf8_.size() && continuesName(utf8_[end])) {
    ++end;
  }
  const std::string_view name = utf8_.substr(nameAt, end - nameAt);
  char quote = 0;
  for (; end < utf8_.size(); ++end) {
    const char character = utf8_[end];
    if (character == '<') {
      break;
    }
    if (quote != 0) {
      quote = character == quote ? '\0' : quote;
    } else if (character == '"' || character == '\'') {
      quote = character;
    } else if (character == '>') {
      const bool selfClosing = piece == XmlPiece::kOpening && utf8_[end - 1] == '/';
      const XmlToken token{piece, at_, name, selfClosing};
      at_ = end + 1;
      return token;
    }
  }
  return broken(end);
}

XmlToken XmlScanner::scanLiteral() {
  XmlToken token{XmlPiece::kLiteral, at_, {}, false};
  if (!skipPast(kLiteralBegin, kLiteralEnd, literalEndMayFollow_)) {
    return broken(at_ + kLiteralBegin.size());
  }
  const std::size_t begin = token.offset + kLiteralBegin.size();
  token.text = utf8_.substr(begin, at_ - kLiteralEnd.size() - begin);
  return token;
}

bool XmlScanner::skipPast(std::string_view begin, std::string_view end, bool& endMayFollow) {
  const std::size_t found =
      endMayFollow ? utf8_.find(end, at_ + begin.size()) : std::string_view::npos;
  endMayFollow = found != std::string_view::npos;
  at_ = endMayFollow ? found + end.size() : at_;
  return endMayFollow;
}

// Skips to the first '>' outside of quotes and of the internal subset's brackets. Skips nothing
// when there is none, or when a '<' shows that a quote was not closed.
bool XmlScanner::skipDocumentType() {
  inProlog_ = false;
  const std::size_t begin = at_;
  bool inSubset = false;
  at_ += kDocumentTypeBegin.size();
  while (at_ < utf8_.size()) {
    const char character = utf8_[at_];
    if (character == '"' || character == '\'') {
      const std::size_t close = utf8_.find(character, at_ + 1);
      const std::string_view quoted = utf8_.substr(at_, close - at_);
      if (close == std::string_view::npos ||
          (!inSubset && quoted.find('<') != std::string_view::npos)) {
        break;
      }
      at_ = close;
    } else if (character == '[' || character == ']') {
      inSubset = character == '[';
    } else if (character == '<') {
      if (!inSubset || !skipInSubset()) {
        break;
      }
      continue;
    } else if (character == '>' && !inSubset) {
      ++at_;
      return true;
    }
    ++at_;
  }
  at_ = begin;
  return false;
}

// Skips a '<' in an internal subset; a whole comment or instruction, in which quotes and brackets
// have no meaning.
bool XmlScanner::skipInSubset() {
  const std::string_view rest = utf8_.substr(at_);
  if (rest.starts_with(kCommentBegin)) {
    return skipPast(kCommentBegin, kCommentEnd, commentEndMayFollow_);
  }
  if (rest.starts_with(kInstructionBegin)) {
    return skipPast(kInstructionBegin, kInstructionEnd, instructionEndMayFollow_);
  }
  ++at_;
  return true;
}

}  // namespace orvanta::strings
