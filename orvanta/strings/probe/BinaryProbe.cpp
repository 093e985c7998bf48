#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>

#include <orvanta/strings/probe/BinaryProbe.h>
#include <orvanta/strings/reader/binary/BinaryObjects.h>
#include <orvanta/strings/reader/binary/BinaryText.h>

namespace orvanta::strings {

namespace {

// This multiple of the file's size: half of what the reader allows (BinaryTable.cpp).
constexpr std::size_t kGrantedGrowth = 8;
constexpr std::size_t kPairOverhead = 32;
constexpr std::size_t kMostBytesOfUnit = 3;

// The longest distance from the beginning of an object to its text: a marker, and an integer of 16
// bytes with its own marker.
constexpr std::size_t kLongestMarker = 18;

std::size_t mostBytes(const std::optional<BinaryObject>& object) noexcept {
  return object && object->isText() ? kMostBytesOfUnit * BinaryText::leastSize(*object) : 0;
}

// The pairs of a dictionary, in its order.
class Pairs {
 public:
  Pairs(const BinaryObjects& objects, const BinaryObject& dictionary, std::size_t fileSize) noexcept
      : objects_(objects), dictionary_(dictionary), granted_(kGrantedGrowth * fileSize) {}

  // Whether the reader is certain to reach the pair at `index` within its memory limit. Must be
  // called with ascending indices.
  [[nodiscard]] bool isReached(std::size_t index) noexcept {
    for (; charged_ <= index; ++charged_) {
      const std::size_t most =
          kPairOverhead + mostBytes(key(charged_)) + mostBytes(value(charged_));
      if (most > granted_) {
        return false;
      }
      granted_ -= most;
    }
    return true;
  }

  [[nodiscard]] std::optional<BinaryObject> key(std::size_t index) const noexcept {
    return objects_.at(objects_.referenceAt(dictionary_, index));
  }
  [[nodiscard]] std::optional<BinaryObject> value(std::size_t index) const noexcept {
    return key(objects_.pairCount(dictionary_) + index);
  }

 private:
  const BinaryObjects& objects_;
  const BinaryObject& dictionary_;
  std::size_t granted_;
  std::size_t charged_ = 0;  // The number of pairs charged so far.
};

class BinaryProbe final : public FileProbe {
 public:
  explicit BinaryProbe(const PrefixSearches& searches) noexcept : searches_(searches) {}

  void look(const FilePiece& piece) override {
    const SampledSearch& search = searches_.inBinary;
    for (;;) {
      const std::size_t at = search.find(piece.bytes, searched_ - piece.offset);
      if (at == SampledSearch::kNone) {
        break;
      }
      last_ = piece.offset + at;
      first_ = std::min(first_, last_);
      searched_ = last_ + 1;
    }
    const std::size_t end = piece.offset + piece.bytes.size();
    searched_ = std::max(searched_, end - std::min(piece.bytes.size(), search.longestPattern()));
  }

  bool addEntries(const FilePiece& head, StringTableBuilder& table) override {
    if (last_ == 0) {
      return true;
    }
    return head.isLast && addPairs(head.bytes, table);
  }

 private:
  bool addPairs(std::string_view bytes, StringTableBuilder& table) const {
    const auto objects = BinaryObjects::open(bytes);
    const auto top = objects ? objects->at(objects->topObject()) : std::nullopt;
    if (!top || top->kind != BinaryKind::kDictionary) {
      return true;
    }
    Pairs pairs(*objects, *top, bytes.size());
    const std::size_t begin = first_ - std::min(first_, kLongestMarker);
    for (const std::size_t index : objects->keysBetween(*top, begin, last_)) {
      const auto key = pairs.key(index);
      const auto value = pairs.value(index);
      if (key && key->isText() && value && value->isText() &&
          !(pairs.isReached(index) &&
            table.add(BinaryText(*key).str(), BinaryText(*value).str()))) {
        return false;
      }
    }
    return true;
  }

  const PrefixSearches& searches_;
  std::size_t searched_ = 0;
  // The first and the last place of the prefix; `last_` is 0 when there is none.
  std::size_t first_ = std::string_view::npos;
  std::size_t last_ = 0;
};

}  // namespace

std::unique_ptr<FileProbe> makeBinaryProbe(const PrefixSearches& searches) {
  return std::make_unique<BinaryProbe>(searches);
}

}  // namespace orvanta::strings
