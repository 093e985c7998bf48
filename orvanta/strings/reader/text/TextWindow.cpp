#include <cstring>

#include <orvanta/strings/reader/text/TextWindow.h>

namespace orvanta::strings {

namespace {

constexpr std::size_t kSize = std::size_t{32} * 1024;

}  // namespace

TextWindow::TextWindow(EncodedText text)
    : transcoder_(text), bytes_(std::make_unique_for_overwrite<char[]>(kSize)) {
  fill();
}

bool TextWindow::advance(std::size_t consumed) noexcept {
  const std::size_t kept = size_ - consumed;
  if (kept > kSize / 2) {
    return false;
  }
  std::memmove(bytes_.get(), bytes_.get() + consumed, kept);
  size_ = kept;
  offset_ += consumed;
  fill();
  return true;
}

void TextWindow::fill() noexcept {
  size_ += transcoder_.transcode(bytes_.get() + size_, kSize - size_);
  const std::size_t lineBreak =
      atEnd() ? size_ - 1 : std::string_view(bytes_.get(), size_).find_last_of("\r\n");
  linesSize_ = lineBreak + 1;
}

}  // namespace orvanta::strings
