#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <type_traits>

#include <orvanta/strings/encoding/TextEncoding.h>

namespace orvanta::strings {

/// Encoded text as an array of code units, for UTF-8 and UTF-16 of either byte order. An incomplete
/// unit at the end is left out.
template <TextEncoding kEncoding>
class TextUnits {
  static constexpr bool kIsUtf8 = kEncoding == TextEncoding::kUtf8;
  static constexpr bool kIsSwapped =
      kEncoding == (std::endian::native == std::endian::little ? TextEncoding::kUtf16Big
                                                               : TextEncoding::kUtf16Little);

 public:
  static constexpr TextEncoding encoding = kEncoding;
  using Unit = std::conditional_t<kIsUtf8, std::uint8_t, std::uint16_t>;

  explicit TextUnits(std::string_view bytes) noexcept : bytes_(bytes) {}

  [[nodiscard]] std::string_view bytes() const noexcept { return bytes_; }
  [[nodiscard]] std::size_t size() const noexcept { return bytes_.size() / sizeof(Unit); }
  [[nodiscard]] bool isTorn() const noexcept { return bytes_.size() % sizeof(Unit) != 0; }

  /// The bytes of the units from `begin` to `end`.
  [[nodiscard]] std::string_view slice(std::size_t begin, std::size_t end) const noexcept {
    return bytes_.substr(begin * sizeof(Unit), (end - begin) * sizeof(Unit));
  }

  /// The unit of an ASCII character, in the byte order of the text.
  [[nodiscard]] static constexpr Unit unitOf(char ascii) noexcept {
    const auto unit = static_cast<Unit>(static_cast<unsigned char>(ascii));
    return kIsSwapped ? swapped(unit) : unit;
  }

  [[nodiscard]] Unit unitAt(std::size_t index) const noexcept {
    Unit unit = 0;
    std::memcpy(&unit, bytes_.data() + index * sizeof(Unit), sizeof unit);
    return unit;
  }

  /// The character at `index` if it is ASCII, else some non-ASCII byte.
  [[nodiscard]] char asciiAt(std::size_t index) const noexcept {
    const Unit unit = kIsSwapped ? swapped(unitAt(index)) : unitAt(index);
    return static_cast<char>(unit < 0x80 || kIsUtf8 ? unit : 0x80);
  }

  [[nodiscard]] bool hasAt(std::size_t index, std::string_view ascii) const noexcept {
    bool isSame = index + ascii.size() <= size();
    for (std::size_t offset = 0; isSame && offset < ascii.size(); ++offset) {
      isSame = asciiAt(index + offset) == ascii[offset];
    }
    return isSame;
  }

  /// Whether LF, CR, U+2028 or U+2029 stands at `index`.
  [[nodiscard]] bool breaksLineAt(std::size_t index) const noexcept {
    const char ascii = asciiAt(index);
    if (static_cast<unsigned char>(ascii) < 0x80) {
      return ascii == '\n' || ascii == '\r';
    }
    if constexpr (kIsUtf8) {
      const std::string_view rest = bytes_.substr(index);
      return rest.starts_with("\u2028") || rest.starts_with("\u2029");
    } else {
      const Unit unit = kIsSwapped ? swapped(unitAt(index)) : unitAt(index);
      return unit == 0x2028 || unit == 0x2029;
    }
  }

 private:
  static constexpr Unit swapped(Unit unit) noexcept {
    return static_cast<Unit>((unit << 8) | (unit >> 8));
  }

  std::string_view bytes_;
};

}  // namespace orvanta::strings
