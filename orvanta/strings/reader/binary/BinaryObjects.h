#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace orvanta::strings {

/// The kind of an object: the high half of its marker byte.
enum class BinaryKind : std::uint8_t {
  kInteger = 0x1,
  kAsciiText = 0x5,
  kUtf16Text = 0x6,
  kDictionary = 0xD,
};

struct BinaryObject {
  BinaryKind kind;
  /// The characters of a text; of a dictionary the references to all keys, then those to all
  /// values; nothing for the other kinds. Lies within the file.
  std::string_view payload;

  [[nodiscard]] bool isText() const noexcept {
    return kind == BinaryKind::kAsciiText || kind == BinaryKind::kUtf16Text;
  }
};

/// The objects of one binary property list, a view of the file's bytes:
///
///     "bplist00" | objects | offset of every object | trailer
///
/// The trailer's 32 bytes, all numbers big-endian:
///
///     5 unused | sort version | bytes of an offset | bytes of a reference
///     number of objects (8) | top object (8) | where the offsets stand (8)
///
/// An object begins with a marker byte: the kind in its high half and the count in its low half. A
/// count of 0xF means that an integer object with the count follows. References are indices into
/// the offsets. Every size and offset is checked against the file's size before it is used.
class BinaryObjects {
 public:
  /// Absent when the trailer is missing or contradicts the file.
  [[nodiscard]] static std::optional<BinaryObjects> open(std::string_view file) noexcept;

  /// The object with this number. Absent when there is none or it does not lie within the file.
  [[nodiscard]] std::optional<BinaryObject> at(std::uint64_t reference) const noexcept;

  [[nodiscard]] std::uint64_t topObject() const noexcept { return topObject_; }

  /// How many pairs the dictionary has.
  [[nodiscard]] std::size_t pairCount(const BinaryObject& dictionary) const noexcept {
    return dictionary.payload.size() / (2 * referenceSize_);
  }

  /// The reference at `index`, which counts through the dictionary's keys and then its values.
  [[nodiscard]] std::uint64_t referenceAt(const BinaryObject& dictionary,
                                          std::size_t index) const noexcept;

  /// The ascending indices of those keys of the dictionary whose objects begin in the file from
  /// `begin` on and before `end` (benchmark row startup-configured-first-binary).
  [[nodiscard]] std::vector<std::size_t> keysBetween(const BinaryObject& dictionary,
                                                     std::uint64_t begin, std::uint64_t end) const;

 private:
  BinaryObjects() = default;
  // The reference must be below the number of objects.
  [[nodiscard]] std::uint64_t offsetOf(std::uint64_t reference) const noexcept;
  [[nodiscard]] std::optional<std::uint64_t> readCount(std::string_view& body,
                                                       unsigned inMarker) const noexcept;

  std::string_view objects_;  ///< From the file's beginning up to the offsets.
  std::string_view offsets_;
  std::uint64_t objectCount_ = 0;
  std::size_t offsetSize_ = 0;
  std::size_t referenceSize_ = 0;
  std::uint64_t topObject_ = 0;
};

}  // namespace orvanta::strings
