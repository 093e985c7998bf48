// Layout: "bplist00", the objects, the table of their offsets, a trailer of 32 bytes. Everything is
// big-endian. Object 0 is the dictionary, then come the keys and then the values.
#include <algorithm>
#include <cstdint>

#include "data/TableForms.h"
#include "data/Utf16.h"

namespace orvanta::bench {

namespace {

constexpr std::size_t kReferenceSize = 4;
constexpr std::size_t kOffsetSize = 4;

void appendNumber(std::string& out, std::uint64_t number, std::size_t size) {
  for (std::size_t at = size; at > 0; --at) {
    out += static_cast<char>(number >> (8 * (at - 1)));
  }
}

void appendMarker(std::string& out, unsigned kind, std::size_t count) {
  if (count < 15) {
    out += static_cast<char>(kind << 4 | count);
    return;
  }
  out += static_cast<char>(kind << 4 | 15U);
  out += '\x12';
  appendNumber(out, count, 4);
}

void appendString(std::string& out, std::string_view text) {
  if (std::all_of(text.begin(), text.end(), [](char character) { return character >= 0; })) {
    appendMarker(out, 5, text.size());
    out += text;
    return;
  }
  const std::u16string units = utf16(text);
  appendMarker(out, 6, units.size());
  for (const char16_t unit : units) {
    appendNumber(out, unit, 2);
  }
}

void appendDictionary(std::string& out, std::size_t entries) {
  appendMarker(out, 13, entries);
  for (std::size_t object = 1; object <= 2 * entries; ++object) {
    appendNumber(out, object, kReferenceSize);
  }
}

}  // namespace

std::string binaryPropertyList(const Table& table) {
  std::string bytes = "bplist00";
  std::vector<std::size_t> offsets = {bytes.size()};
  appendDictionary(bytes, table.size());
  for (const Entry& entry : table) {
    offsets.push_back(bytes.size());
    appendString(bytes, entry.key);
  }
  for (const Entry& entry : table) {
    offsets.push_back(bytes.size());
    appendString(bytes, entry.value);
  }
  const std::size_t offsetTable = bytes.size();
  for (const std::size_t offset : offsets) {
    appendNumber(bytes, offset, kOffsetSize);
  }
  bytes.append(6, '\0');
  appendNumber(bytes, kOffsetSize, 1);
  appendNumber(bytes, kReferenceSize, 1);
  appendNumber(bytes, offsets.size(), 8);
  appendNumber(bytes, 0, 8);
  appendNumber(bytes, offsetTable, 8);
  return bytes;
}

}  // namespace orvanta::bench
