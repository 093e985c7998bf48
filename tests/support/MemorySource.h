#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

#include <orvanta/strings/ByteSource.h>

namespace orvanta::test {

/// A readable file in memory; a read returns at most `most` bytes.
class MemorySource final : public strings::ByteSource {
 public:
  explicit MemorySource(std::string_view bytes, std::size_t most = std::string_view::npos)
      : bytes_(bytes), most_(most) {}

  std::optional<std::size_t> read(std::span<char> buffer) override {
    const std::size_t count = std::min({bytes_.size(), buffer.size(), most_});
    std::copy_n(bytes_.begin(), count, buffer.begin());
    bytes_.remove_prefix(count);
    return count;
  }

 private:
  std::string_view bytes_;
  std::size_t most_;
};

}  // namespace orvanta::test
