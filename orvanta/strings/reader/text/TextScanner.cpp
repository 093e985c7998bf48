#include <orvanta/strings/reader/text/TextScanner.h>

namespace orvanta::strings {

namespace {

// White space beyond ASCII: the line break and the no-break space of Latin-1, the line and the
// paragraph separator, and a byte-order mark left over from joined files.
constexpr std::string_view kWideBlanks[] = {"\u0085", "\u00A0", "\u2028", "\u2029", "\uFEFF"};

// The inside and the end of the comment before every statement of a downloaded table.
constexpr std::string_view kEmptyComment = " */";

constexpr std::string_view kCommentBegin = "/*";
constexpr std::string_view kCommentEnd = "*/";
constexpr std::string_view kLineCommentBegin = "//";

std::size_t wideBlankAt(std::string_view text) noexcept {
  for (const std::string_view blank : kWideBlanks) {
    if (text.starts_with(blank)) {
      return blank.size();
    }
  }
  return 0;
}

// Whether another comment seems to begin inside the one from `begin` to `end`.
bool holdsComment(const char* begin, const char* end) noexcept {
  constexpr std::size_t kShortest = 6;
  const std::string_view comment(begin, end);
  return comment.size() >= kShortest &&
         comment.find(kCommentBegin, kCommentBegin.size()) != std::string_view::npos;
}

}  // namespace

template <bool kPassesNested>
const char* TextScanner::skipRest(const char* at) noexcept {
  while (at != end_) {
    const char* before = at;
    at = skipOne<kPassesNested>(at);
    if (at == before) {
      break;
    }
  }
  return at;
}

template const char* TextScanner::skipRest<false>(const char* at) noexcept;
template const char* TextScanner::skipRest<true>(const char* at) noexcept;

template <bool kPassesNested>
const char* TextScanner::skipOne(const char* at) noexcept {
  if (isKind(*at, kBlank)) {
    return at + 1;
  }
  if (isKind(*at, kWide)) {
    return at + wideBlankAt({at, end_});
  }
  if (std::string_view(at, end_).starts_with(kLineCommentBegin)) {
    return lineEnd(at);
  }
  if (!beginsComment(at)) {
    return at;
  }
  const char* behind = skipComment(at);
  return behind == nullptr || (!kPassesNested && holdsComment(at, behind)) ? at : behind;
}

const char* TextScanner::skipComment(const char* at) noexcept {
  const char* inside = at + kCommentMark;
  if (std::string_view(inside, end_).starts_with(kEmptyComment)) {
    return inside + kEmptyComment.size();
  }
  const char* end = commentEnds_.first(inside);
  return end == end_ ? nullptr : end + kCommentMark;
}

const char* TextScanner::findCommentEnd(const char* from, const char* to) noexcept {
  const std::size_t length = std::string_view(from, to).find(kCommentEnd);
  return length == std::string_view::npos ? nullptr : from + length;
}

const char* TextScanner::findLineEnd(const char* from, const char* to) noexcept {
  for (; from != to; ++from) {
    if (isKind(*from, kLineBreak | kWideBreak) && lineBreakAt({from, to}) > 0) {
      return from;
    }
  }
  return nullptr;
}

}  // namespace orvanta::strings
