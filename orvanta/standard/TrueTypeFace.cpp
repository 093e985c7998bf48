#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

#include <orvanta/standard/TrueTypeFace.h>

namespace orvanta::standard {

namespace {

using Bytes = std::span<const std::byte>;

// Numbers are big-endian. Beyond the end everything is 0, so that no reader can leave the data.
std::uint32_t numberAt(Bytes bytes, std::size_t offset, std::size_t width) {
  std::uint32_t number = 0;
  for (std::size_t i = 0; i < width; ++i) {
    const std::size_t at = offset + i;
    number = number << 8U | (at < bytes.size() ? std::to_integer<std::uint32_t>(bytes[at]) : 0U);
  }
  return number;
}
std::uint32_t u16(Bytes bytes, std::size_t offset) {
  return numberAt(bytes, offset, 2);
}
std::uint32_t u32(Bytes bytes, std::size_t offset) {
  return numberAt(bytes, offset, 4);
}

constexpr std::uint32_t tag(std::string_view text) {
  std::uint32_t value = 0;
  for (const char c : text) {
    value = value << 8U | static_cast<unsigned char>(c);
  }
  return value;
}

// The part that lies wholly inside; absent when it does not.
std::optional<Bytes> part(Bytes bytes, std::size_t offset, std::size_t length) {
  if (offset > bytes.size() || length > bytes.size() - offset) {
    return std::nullopt;
  }
  return bytes.subspan(offset, length);
}

constexpr std::size_t kHeaderSize = 12;
constexpr std::size_t kTableRecordSize = 16;

bool hasFontSignature(Bytes data) {
  constexpr std::array kSignatures{0x00010000U, tag("true"), tag("OTTO")};
  return std::find(kSignatures.begin(), kSignatures.end(), u32(data, 0)) != kSignatures.end();
}

struct Tables {
  Bytes name;
  Bytes head;
  Bytes os2;
};

// Absent when the directory or any table that it lists reaches beyond the data.
std::optional<Tables> readTableDirectory(Bytes data) {
  const std::optional<Bytes> directory = part(data, kHeaderSize, u16(data, 4) * kTableRecordSize);
  if (!directory) {
    return std::nullopt;
  }
  Tables tables;
  for (std::size_t record = 0; record < directory->size(); record += kTableRecordSize) {
    const std::optional<Bytes> table =
        part(data, u32(*directory, record + 8), u32(*directory, record + 12));
    if (!table) {
      return std::nullopt;
    }
    switch (u32(*directory, record)) {
      case tag("name"):
        tables.name = *table;
        break;
      case tag("head"):
        tables.head = *table;
        break;
      case tag("OS/2"):
        tables.os2 = *table;
        break;
      default:
        break;
    }
  }
  return tables;
}

bool isHeadTable(Bytes head) {
  constexpr std::size_t kSize = 54;
  constexpr std::uint32_t kMagicNumber = 0x5F0F3CF5;
  return head.size() >= kSize && u32(head, 12) == kMagicNumber;
}

// What the file format and PostScript itself allow in a name.
bool isPostScriptName(std::string_view name) {
  constexpr std::size_t kLongestName = 63;
  return !name.empty() && name.size() <= kLongestName &&
         std::all_of(name.begin(), name.end(), [](char c) {
           return c > ' ' && c < '\x7F' &&
                  std::string_view("[](){}<>/%").find(c) == std::string_view::npos;
         });
}

// A name's characters; empty when one of them is not ASCII.
std::string asciiText(Bytes text, std::size_t unitSize) {
  std::string ascii;
  for (std::size_t at = 0; at < text.size(); at += unitSize) {
    const std::uint32_t unit = numberAt(text, at, unitSize);
    if (unit > 0x7F) {
      return {};
    }
    ascii.push_back(static_cast<char>(unit));
  }
  return ascii;
}

// The first record with the PostScript name whose text is one.
std::string readPostScriptName(Bytes table) {
  constexpr std::size_t kNameHeaderSize = 6;
  constexpr std::size_t kRecordSize = 12;
  constexpr std::uint32_t kPostScriptNameId = 6;
  constexpr std::uint32_t kMacintosh = 1;
  const std::optional<Bytes> records = part(table, kNameHeaderSize, u16(table, 2) * kRecordSize);
  const std::size_t storage = u16(table, 4);
  for (std::size_t at = 0; records && at < records->size(); at += kRecordSize) {
    const Bytes record = records->subspan(at, kRecordSize);
    const std::optional<Bytes> text = part(table, storage + u16(record, 10), u16(record, 8));
    if (u16(record, 6) != kPostScriptNameId || !text) {
      continue;
    }
    std::string name = asciiText(*text, u16(record, 0) == kMacintosh ? 1 : 2);
    if (isPostScriptName(name)) {
      return name;
    }
  }
  return {};
}

platform::SymbolicTraits readTraits(const Tables& tables) {
  constexpr std::size_t kFsSelection = 62;
  constexpr std::size_t kMacStyle = 44;
  const bool hasSelection = tables.os2.size() >= kFsSelection + 2;
  const std::uint32_t style =
      hasSelection ? u16(tables.os2, kFsSelection) : u16(tables.head, kMacStyle);
  const std::uint32_t italic = hasSelection ? 1U << 0U : 1U << 1U;
  const std::uint32_t bold = hasSelection ? 1U << 5U : 1U << 0U;
  return ((style & italic) != 0 ? platform::kItalicTrait : 0) |
         ((style & bold) != 0 ? platform::kBoldTrait : 0);
}

}  // namespace

std::optional<TrueTypeFace> readTrueTypeFace(std::span<const std::byte> data) {
  if (!hasFontSignature(data)) {
    return std::nullopt;
  }
  const std::optional<Tables> tables = readTableDirectory(data);
  if (!tables || !isHeadTable(tables->head)) {
    return std::nullopt;
  }
  std::string name = readPostScriptName(tables->name);
  if (name.empty()) {
    return std::nullopt;
  }
  return TrueTypeFace{std::move(name), readTraits(*tables)};
}

}  // namespace orvanta::standard
