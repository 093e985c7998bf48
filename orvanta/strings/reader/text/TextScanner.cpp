#include <cstddef>
#include <string_view>

#include <orvanta/strings/reader/text/TextScanner.h>

namespace orvanta::strings {

namespace {

// White space beyond ASCII: the line break and the no-break space of Latin-1, the line and the
// paragraph separator, and a byte-order mark left over from joined files.
constexpr std::string_view kWideBlanks[] = {"\u0085", "\u00A0", "\u2028", "\u2029", "\uFEFF"};

// The inside and the end of the comment that stands before every statement of a downloaded table.
constexpr std::string_view kEmptyComment = " */";

constexpr std::string_view kCommentEnd = "*/";

std::size_t wideBlankAt(std::string_view text) noexcept {
  for (const std::string_view blank : kWideBlanks) {
    if (text.starts_with(blank)) {
      return blank.size();
    }
  }
  return 0;
}

}  // namespace

const char* TextScanner::skipIdleUpTo(const char* at, const char* limit) noexcept {
  while (at < limit) {
    const char* before = at;
    if (isKind(*at, kBlank)) {
      ++at;
    } else if (beginsComment(at)) {
      const char* behind = skipComment(at);
      at = behind == nullptr ? at : behind;
    } else if (beginsLineComment(at)) {
      at = lineEnd(at);
    } else if (isKind(*at, kWide)) {
      at += wideBlankAt({at, end_});
    }
    if (at == before) {
      break;
    }
  }
  return at;
}

const char* TextScanner::skipComment(const char* at) noexcept {
  const char* inside = at + 2;
  if (std::string_view(inside, end_).starts_with(kEmptyComment)) {
    return inside + kEmptyComment.size();
  }
  const char* end = commentEnds_.first(inside);
  return end == end_ ? nullptr : end + kCommentEnd.size();
}

const char* TextScanner::findCommentEnd(const char* from, const char* to) noexcept {
  const std::size_t length = std::string_view(from, to).find(kCommentEnd);
  return length == std::string_view::npos ? nullptr : from + length;
}

const char* TextScanner::findLineEnd(const char* from, const char* to) noexcept {
  while (from != to && !isKind(*from, kLineBreak)) {
    ++from;
  }
  return from == to ? nullptr : from;
}

}  // namespace orvanta::strings
