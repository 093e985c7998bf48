#include <orvanta/strings/reader/text/TextScanner.h>

namespace orvanta::strings {

namespace {

// White space beyond ASCII: the line break and the no-break space of Latin-1, the line and the
// paragraph separator, and a byte-order mark left over from joined files.
constexpr std::string_view kWideBlanks[] = {"\u0085", "\u00A0", "\u2028", "\u2029", "\uFEFF"};

// The comment before every statement of a downloaded table.
constexpr std::string_view kEmptyComment = "/* */";

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

}  // namespace

template <bool kPassesNested>
const char* TextScanner::skipRest(const char* at) noexcept {
  for (;;) {
    while (at != end_ && isKind(*at, kBlank)) {
      ++at;
    }
    const char* const before = at;
    if (at != end_ && *at == '/') {
      at = skipSlash<kPassesNested>(at);
    } else if (at != end_ && isKind(*at, kWide)) {
      at += wideBlankAt({at, end_});
    }
    if (at == before) {
      return at;
    }
  }
}

template const char* TextScanner::skipRest<false>(const char* at) noexcept;
template const char* TextScanner::skipRest<true>(const char* at) noexcept;

// Skips the comment that begins with the slash at `at`, if there is one.
template <bool kPassesNested>
const char* TextScanner::skipSlash(const char* at) noexcept {
  const std::string_view rest(at, end_);
  if (rest.starts_with(kEmptyComment)) {
    return at + kEmptyComment.size();
  }
  if (rest.starts_with(kLineCommentBegin)) {
    return lineEnd(at);
  }
  if (!rest.starts_with(kCommentBegin)) {
    return at;
  }
  bool isNested = false;
  const char* const behind = skipComment(at, isNested);
  return behind == nullptr || (!kPassesNested && isNested) ? at : behind;
}

const char* TextScanner::skipComment(const char* at, bool& isNested) noexcept {
  const char* const inside = at + kCommentBegin.size();
  // In most comments the first star belongs to the end.
  const char* const star = stars_.first(inside);
  if (std::string_view(star, end_).starts_with(kCommentEnd)) {
    return star + kCommentEnd.size();
  }
  const char* const end = commentEnds_.first(inside);
  isNested = std::string_view(inside, end).find(kCommentBegin) != std::string_view::npos;
  return end == end_ ? nullptr : end + kCommentEnd.size();
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
