#include <cstddef>
#include <string_view>

#include <orvanta/platform/standard/strings/TextScanner.h>

namespace orvanta::platform::standard {

namespace {

// White space beyond ASCII: the line break and the no-break space of Latin-1, the line and the
// paragraph separator, and a byte-order mark left over from joined files.
constexpr std::string_view kWideBlanks[] = {"\u0085", "\u00A0", "\u2028", "\u2029", "\uFEFF"};

// The inside and the end of the comment that stands before every statement of a downloaded table.
constexpr std::string_view kEmptyComment = " */";

std::size_t wideBlankAt(std::string_view text) noexcept {
  for (const std::string_view blank : kWideBlanks) {
    if (text.starts_with(blank)) {
      return blank.size();
    }
  }
  return 0;
}

}  // namespace

const char* TextScanner::skipRareIdle(const char* at) noexcept {
  while (at != end_) {
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
  if (inside < commentSearched_ || inside > commentEnd_) {
    const std::size_t length = std::string_view(inside, end_).find("*/");
    commentSearched_ = inside;
    commentEnd_ = length == std::string_view::npos ? end_ : inside + length;
  }
  return commentEnd_ == end_ ? nullptr : commentEnd_ + 2;
}

// Going back costs no more than the way back: what is there was looked at before.
void TextScanner::searchBackslash(const char* at) noexcept {
  if (at > backslash_) {
    backslash_ = backslashFrom(at);
  } else if (const char* found = findCharacter('\\', at, backslashSearched_)) {
    backslash_ = found;
  }
  backslashSearched_ = at;
}

const char* TextScanner::lineEnd(const char* at) const noexcept {
  while (at != end_ && !isKind(*at, kLineBreak)) {
    ++at;
  }
  return at;
}

}  // namespace orvanta::platform::standard
