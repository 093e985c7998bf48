#include <algorithm>
#include <cerrno>
#include <cstring>

#include <orvanta/strings/encoding/Utf8Validity.h>
#include <orvanta/strings/writer/Utf16Writer.h>

namespace orvanta::strings {

namespace {

using Byte = unsigned char;

// The number of bytes of an incomplete character at the end of `utf8`.
std::size_t incompleteBytes(std::string_view utf8) noexcept {
  for (std::size_t count = 1; count <= std::min<std::size_t>(utf8.size(), 3); ++count) {
    const auto byte = static_cast<Byte>(utf8[utf8.size() - count]);
    if ((byte & 0xC0) != 0x80) {
      const std::size_t length = byte < 0xC0 ? 1 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
      return count < length ? count : 0;
    }
  }
  return 0;
}

Status invalidUtf8() {
  return {EILSEQ, "the table is not valid UTF-8"_s};
}

}  // namespace

Utf16Writer::Utf16Writer(ByteSink& file)
    : file_(file), buffers_(std::make_unique_for_overwrite<Buffers>()) {
  append("\uFEFF");
}

void Utf16Writer::appendAndFlush(std::string_view utf8) {
  while (!utf8.empty()) {
    const std::size_t part = std::min(utf8.size(), kSize - size_);
    std::memcpy(buffers_->utf8 + size_, utf8.data(), part);
    size_ += part;
    utf8.remove_prefix(part);
    if (size_ == kSize) {
      flush();
    }
  }
}

void Utf16Writer::flush() {
  const std::size_t incomplete = incompleteBytes({buffers_->utf8, size_});
  const char* const end = buffers_->utf8 + size_ - incomplete;
  if (status_.ok() && !isValidUtf8({buffers_->utf8, end})) {
    status_ = invalidUtf8();
  }
  if (status_.ok()) {
    const char* const stop = utf8ToUtf16Little(buffers_->utf8, end, buffers_->utf16);
    status_ = file_.write({buffers_->utf16, stop});
  }
  std::copy(end, end + incomplete, buffers_->utf8);
  size_ = incomplete;
}

Status Utf16Writer::finish() {
  flush();
  if (status_.ok() && size_ > 0) {
    status_ = invalidUtf8();
  }
  return status_;
}

}  // namespace orvanta::strings
