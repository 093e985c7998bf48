#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Bytes.h"

/// Builds binary property lists, valid and invalid ones.
namespace orvanta::test {

/// Appends the offset table and the trailer to objects that begin at `offsets` in `file`.
inline std::string closeBinaryList(std::string file, const std::vector<std::size_t>& offsets,
                                   std::size_t top, std::size_t offsetSize,
                                   std::size_t referenceSize) {
  const std::size_t offsetsStart = file.size();
  for (const std::size_t offset : offsets) {
    file += bigEndian(offset, offsetSize);
  }
  return file + bigEndian(0, 6) + bigEndian(offsetSize, 1) + bigEndian(referenceSize, 1) +
         bigEndian(offsets.size(), 8) + bigEndian(top, 8) + bigEndian(offsetsStart, 8);
}

/// A marker with its count in an integer object of 2 to the power of `exponent` bytes.
inline std::string longMarker(unsigned kind, std::uint64_t count, unsigned exponent) {
  return bigEndian((kind << 4) | 0xF, 1) + bigEndian(0x10 | exponent, 1) +
         bigEndian(count, std::size_t{1} << exponent);
}

inline std::string marker(unsigned kind, std::uint64_t count) {
  return count < 0xF ? bigEndian((kind << 4) | count, 1) : longMarker(kind, count, 3);
}

inline std::string asciiObject(const std::string& text) {
  return marker(0x5, text.size()) + text;
}

inline std::string utf16Object(std::u16string_view text) {
  std::string bytes = marker(0x6, text.size());
  for (const char16_t unit : text) {
    bytes += bigEndian(unit, 2);
  }
  return bytes;
}

/// Builder of a list. Its top object is a dictionary of the added pairs, unless `bytes` is given
/// another.
struct BinaryList {
  std::size_t referenceSize = 2;
  std::size_t offsetSize = 3;
  std::vector<std::string> objects{};
  std::vector<std::uint64_t> keys{};
  std::vector<std::uint64_t> values{};

  std::uint64_t object(const std::string& bytes) {
    objects.push_back(bytes);
    return objects.size() - 1;
  }
  BinaryList& pair(std::uint64_t key, std::uint64_t value) {
    keys.push_back(key);
    values.push_back(value);
    return *this;
  }
  BinaryList& pair(const std::string& key, const std::string& value) {
    const std::uint64_t keyObject = object(key);
    return pair(keyObject, object(value));
  }

  [[nodiscard]] std::string bytes() const {
    std::string top = marker(0xD, keys.size());
    for (const auto* references : {&keys, &values}) {
      for (const std::uint64_t reference : *references) {
        top += bigEndian(reference, referenceSize);
      }
    }
    return bytes(top);
  }
  [[nodiscard]] std::string bytes(const std::string& top) const {
    std::string file = "bplist00";
    std::vector<std::size_t> offsets;
    for (const std::string& object : objects) {
      offsets.push_back(file.size());
      file += object;
    }
    offsets.push_back(file.size());
    return closeBinaryList(file + top, offsets, objects.size(), offsetSize, referenceSize);
  }
};

}  // namespace orvanta::test
