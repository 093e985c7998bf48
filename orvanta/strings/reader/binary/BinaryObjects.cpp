#include <orvanta/strings/reader/binary/BinaryObjects.h>

namespace orvanta::strings {

namespace {

constexpr std::size_t kMagicSize = 8;
constexpr std::size_t kTrailerSize = 32;
constexpr std::size_t kLargestNumber = 8;
constexpr unsigned kCountFollows = 0xF;
constexpr unsigned kLargestIntegerExponent = 4;
// Larger than any file, and small enough that multiplying it by a unit's size does not overflow.
constexpr std::uint64_t kLargestCount = std::uint64_t{1} << 56;

// A big-endian number of at most 8 bytes. It lies behind the file's 8 bytes of magic, so that 8
// bytes ending with it can always be loaded. Compilers turn this form into a single load.
std::uint64_t readNumber(std::string_view bytes) noexcept {
  const char* const begin = bytes.data() + bytes.size() - kLargestNumber;
  const auto at = [begin](std::size_t index) {
    return std::uint64_t{static_cast<unsigned char>(begin[index])} << (56 - 8 * index);
  };
  const std::uint64_t word = at(0) | at(1) | at(2) | at(3) | at(4) | at(5) | at(6) | at(7);
  return word & (~std::uint64_t{0} >> (8 * (kLargestNumber - bytes.size())));
}

bool isNumberSize(std::size_t size) noexcept {
  return size >= 1 && size <= kLargestNumber;
}

// The size of the unit that an object of this kind counts; 0 for kinds whose payload is not read.
std::size_t bytesPerCount(BinaryKind kind, std::size_t referenceSize) noexcept {
  switch (kind) {
    case BinaryKind::kAsciiText:
      return 1;
    case BinaryKind::kUtf16Text:
      return 2;
    case BinaryKind::kDictionary:
      return 2 * referenceSize;
    default:
      return 0;
  }
}

}  // namespace

std::optional<BinaryObjects> BinaryObjects::open(std::string_view file) noexcept {
  if (file.size() < kMagicSize + kTrailerSize) {
    return std::nullopt;
  }
  const std::size_t bodySize = file.size() - kTrailerSize;
  const std::string_view trailer = file.substr(bodySize);
  BinaryObjects objects;
  objects.offsetSize_ = static_cast<unsigned char>(trailer[6]);
  objects.referenceSize_ = static_cast<unsigned char>(trailer[7]);
  const std::uint64_t objectCount = readNumber(trailer.substr(8, 8));
  objects.topObject_ = readNumber(trailer.substr(16, 8));
  const std::uint64_t offsetsStart = readNumber(trailer.substr(24, 8));
  if (!isNumberSize(objects.offsetSize_) || !isNumberSize(objects.referenceSize_) ||
      offsetsStart < kMagicSize || offsetsStart > bodySize ||
      objectCount > (bodySize - offsetsStart) / objects.offsetSize_) {
    return std::nullopt;
  }
  objects.objectCount_ = objectCount;
  objects.objects_ = file.substr(0, static_cast<std::size_t>(offsetsStart));
  objects.offsets_ = file.substr(static_cast<std::size_t>(offsetsStart),
                                 static_cast<std::size_t>(objectCount) * objects.offsetSize_);
  return objects;
}

std::optional<BinaryObject> BinaryObjects::at(std::uint64_t reference) const noexcept {
  if (reference >= objectCount_) {
    return std::nullopt;
  }
  const std::uint64_t offset = offsetOf(reference);
  if (offset < kMagicSize || offset >= objects_.size()) {
    return std::nullopt;
  }
  std::string_view body = objects_.substr(static_cast<std::size_t>(offset));
  const auto marker = static_cast<unsigned char>(body.front());
  body.remove_prefix(1);
  const auto kind = static_cast<BinaryKind>(marker >> 4);
  const std::size_t unit = bytesPerCount(kind, referenceSize_);
  if (unit == 0) {
    return BinaryObject{kind, {}};
  }
  const std::optional<std::uint64_t> count = readCount(body, marker & 0xFU);
  if (!count || *count > kLargestCount || *count * unit > body.size()) {
    return std::nullopt;
  }
  return BinaryObject{kind, body.substr(0, static_cast<std::size_t>(*count * unit))};
}

// The count of an object. Consumes the integer object that holds it, if there is one, from the
// front of `body`. Absent when that is no integer or needs more than 8 bytes.
std::optional<std::uint64_t> BinaryObjects::readCount(std::string_view& body,
                                                      unsigned inMarker) const noexcept {
  if (inMarker != kCountFollows) {
    return inMarker;
  }
  const unsigned marker = body.empty() ? 0 : static_cast<unsigned char>(body.front());
  const unsigned exponent = marker & 0xFU;
  const std::size_t size = std::size_t{1} << exponent;
  if (static_cast<BinaryKind>(marker >> 4) != BinaryKind::kInteger ||
      exponent > kLargestIntegerExponent || body.size() < 1 + size) {
    return std::nullopt;
  }
  std::string_view digits = body.substr(1, size);
  body.remove_prefix(1 + size);
  while (digits.size() > kLargestNumber) {
    if (digits.front() != 0) {
      return std::nullopt;
    }
    digits.remove_prefix(1);
  }
  return readNumber(digits);
}

std::uint64_t BinaryObjects::referenceAt(const BinaryObject& dictionary,
                                         std::size_t index) const noexcept {
  return readNumber(dictionary.payload.substr(index * referenceSize_, referenceSize_));
}

std::uint64_t BinaryObjects::offsetOf(std::uint64_t reference) const noexcept {
  return readNumber(
      offsets_.substr(static_cast<std::size_t>(reference) * offsetSize_, offsetSize_));
}

std::vector<std::size_t> BinaryObjects::keysBetween(const BinaryObject& dictionary,
                                                    std::uint64_t begin, std::uint64_t end) const {
  std::vector<std::size_t> indices;
  const std::size_t count = pairCount(dictionary);
  for (std::size_t index = 0; index < count; ++index) {
    const std::uint64_t reference = referenceAt(dictionary, index);
    if (reference < objectCount_ && offsetOf(reference) - begin < end - begin) {
      indices.push_back(index);
    }
  }
  return indices;
}

}  // namespace orvanta::strings
