#include <algorithm>
#include <cstddef>
#include <utility>

#include <orvanta/strings/document/Comments.h>
#include <orvanta/strings/reader/text/TextCharacters.h>

namespace orvanta::strings {

namespace {

constexpr std::string_view kXmlBegin = "<!--";
constexpr std::string_view kXmlEnd = "-->";

// The inside of a comment, without white space around it, with line feeds at its line ends.
std::string trimmed(std::string_view text) {
  while (!text.empty() && isKind(text.front(), kBlank)) {
    text.remove_prefix(1);
  }
  while (!text.empty() && isKind(text.back(), kBlank)) {
    text.remove_suffix(1);
  }
  std::string lines;
  while (!text.empty()) {
    const std::size_t lineBreak = lineBreakAt(text);
    lines += lineBreak > 0 ? '\n' : text.front();
    text.remove_prefix(std::max<std::size_t>(lineBreak, 1));
  }
  return lines;
}

void append(std::string& comments, std::string_view inside) {
  const std::string comment = trimmed(inside);
  comments += comments.empty() || comment.empty() ? "" : "\n";
  comments += comment;
}

// With a blank between the two characters of each of the pairs.
std::string separated(std::string_view text, std::string_view pair, std::string_view otherPair) {
  std::string separated;
  for (std::size_t at = 0; at < text.size(); ++at) {
    separated += text[at];
    const std::string_view next = text.substr(at, 2);
    separated += next == pair || next == otherPair ? " " : "";
  }
  return separated;
}

class CommentReader {
 public:
  CommentReader(TextScanner& scanner, const char* from, const char* to) noexcept
      : scanner_(scanner), at_(from), to_(to), isBehindStatement_(from != scanner.begin()) {}

  CommentsBetween read() {
    while (at_ < to_) {
      const std::size_t lineBreak = lineBreakAt({at_, to_});
      if (lineBreak > 0) {
        at_ += lineBreak;
        ++lineBreaks_;
        if (lineBreaks_ > 1) {
          comments_.ofNext.clear();
        }
        isBehindStatement_ = false;
      } else if (scanner_.beginsComment(at_) || std::string_view(at_, to_).starts_with("//")) {
        readComment();
      } else {
        if (!isKind(*at_, kBlank) && *at_ != ';') {
          comments_.ofNext.clear();
        }
        ++at_;
      }
    }
    return std::move(comments_);
  }

 private:
  void readComment() {
    const bool isBlock = scanner_.beginsComment(at_);
    const char* const behind = isBlock ? scanner_.skipComment(at_) : nullptr;
    const char* const end = std::min(behind == nullptr ? scanner_.lineEnd(at_) : behind, to_);
    const char* const insideEnd = behind == nullptr || end - at_ < 4 ? end : end - 2;
    append(isBehindStatement_ ? comments_.ofPrevious : comments_.ofNext, {at_ + 2, insideEnd});
    at_ = end;
    lineBreaks_ = 0;
  }

  TextScanner& scanner_;
  const char* at_;
  const char* to_;
  bool isBehindStatement_;
  int lineBreaks_ = 0;
  CommentsBetween comments_;
};

}  // namespace

CommentsBetween commentsBetween(TextScanner& scanner, const char* from, const char* to) {
  return CommentReader(scanner, from, to).read();
}

std::string xmlComments(std::string_view text) {
  std::string comments;
  for (std::size_t at = text.find(kXmlBegin); at != std::string_view::npos;
       at = text.find(kXmlBegin, at)) {
    at += kXmlBegin.size();
    const std::size_t end = text.find(kXmlEnd, at);
    if (end == std::string_view::npos) {
      break;
    }
    append(comments, text.substr(at, end - at));
    at = end;
  }
  return comments;
}

std::string asComment(std::string_view comment) {
  return "/* " + separated(comment, "*/", "/*") + " */";
}

std::string asXmlComment(std::string_view comment) {
  return "<!-- " + separated(comment, "--", "--") + " -->";
}

}  // namespace orvanta::strings
