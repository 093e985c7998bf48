#include <cstring>
#include <utility>

#include <orvanta/strings/ReadFully.h>
#include <orvanta/strings/encoding/Utf8Validity.h>
#include <orvanta/strings/reader/text/TextWindow.h>

namespace orvanta::strings {

namespace {

// Few system calls, and few pages of fresh memory.
constexpr std::size_t kPiece = std::size_t{16} * 1024;

// Half of the window holds a piece: a unit of UTF-16, two bytes, becomes at most three.
constexpr std::size_t kSize = 2 * (kPiece / 2 * 3 + Utf8Transcoder::kSlack);

bool isUtf16(TextEncoding encoding) noexcept {
  return encoding == TextEncoding::kUtf16Little || encoding == TextEncoding::kUtf16Big;
}

// Without the first half of a pair of surrogates at the end. There must be some.
std::string_view wholeCharacters(TextEncoding encoding, std::string_view units) noexcept {
  const char high = units[units.size() - (encoding == TextEncoding::kUtf16Little ? 1 : 2)];
  units.remove_suffix((static_cast<unsigned char>(high) & 0xFC) == 0xD8 ? 2 : 0);
  return units;
}

}  // namespace

TextWindow::TextWindow(ByteSource& file)
    : file_(file), bytes_(std::make_unique_for_overwrite<char[]>(kSize)) {
  readOn(bytes_.get(), size_, kPiece);
  const EncodedText first = detectEncodingAtStart({bytes_.get(), size_});
  encoding_ = first.encoding;
  size_ = first.bytes.size();
  if (isUtf16(encoding_)) {
    encoded_ = std::make_unique_for_overwrite<char[]>(kPiece);
    std::memcpy(encoded_.get(), first.bytes.data(), size_);
    encodedSize_ = std::exchange(size_, 0);
    transcode();
    growth_ = first.bytes.empty()
                  ? 1
                  : static_cast<double>(size_) / static_cast<double>(first.bytes.size());
  } else {
    std::memmove(bytes_.get(), first.bytes.data(), size_);
    isSound_ = isSound_ && encoding_ == TextEncoding::kUtf8;
  }
  endAtLineBreak(0);
}

bool TextWindow::advance(std::size_t consumed) {
  const std::size_t kept = size_ - consumed;
  if (kept > kSize / 2) {
    return false;
  }
  std::memmove(bytes_.get(), bytes_.get() + consumed, kept);
  size_ = kept;
  if (encoded_ != nullptr) {
    readOn(encoded_.get(), encodedSize_, kPiece);
    transcode();
  } else {
    readOn(bytes_.get(), size_, size_ + kPiece);
  }
  endAtLineBreak(linesSize_ - consumed);
  return true;
}

void TextWindow::readOn(char* bytes, std::size_t& size, std::size_t limit) {
  const std::optional<std::size_t> count = readFully(file_, {bytes + size, limit - size});
  size += count.value_or(0);
  read_ += count.value_or(0);
  isSound_ = isSound_ && count.has_value() && read_ < kTooLargeFile;
  atEnd_ = size < limit;
}

void TextWindow::transcode() noexcept {
  const std::string_view all(encoded_.get(), encodedSize_);
  const std::string_view whole = atEnd_ ? all : wholeCharacters(encoding_, all);
  Utf8Transcoder transcoder({encoding_, whole});
  size_ += transcoder.transcode(bytes_.get() + size_, kSize - size_);
  isSound_ = isSound_ && transcoder.replacements() == 0 && !transcoder.isTorn();
  encodedSize_ -= whole.size();
  std::memmove(encoded_.get(), encoded_.get() + whole.size(), encodedSize_);
}

void TextWindow::endAtLineBreak(std::size_t checked) noexcept {
  const std::string_view all(bytes_.get(), size_);
  linesSize_ = atEnd_ ? size_ : all.find_last_of("\r\n") + 1;
  // A line break ends every valid character before it.
  isSound_ = isSound_ && (encoded_ != nullptr || isValidUtf8(lines().substr(checked)));
}

}  // namespace orvanta::strings
