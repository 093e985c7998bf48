#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include <orvanta/text/String.h>
#include <orvanta/text/TextHash.h>

namespace orvanta {

/// An immutable dictionary from text to `Value` behind a shared handle, or absent.
///
/// An absent dictionary and an empty one are different values. The order of entries is the
/// dictionary's own. Copying a handle shares the dictionary; it may be read from any thread.
template <typename Value>
class Dictionary {
 public:
  /// What a dictionary is built in before it is handed out.
  using Map = std::unordered_map<String, Value, TextHash, TextEqual>;

  /// Absent.
  Dictionary() noexcept = default;
  explicit Dictionary(Map entries)
      : entries_(std::make_shared<const Indexed>(std::move(entries))) {}
  Dictionary(std::initializer_list<std::pair<const String, Value>> entries)
      : Dictionary(Map(entries)) {}

  [[nodiscard]] bool isAbsent() const noexcept { return entries_ == nullptr; }
  [[nodiscard]] bool isPresent() const noexcept { return entries_ != nullptr; }
  [[nodiscard]] bool empty() const noexcept { return size() == 0; }
  [[nodiscard]] std::size_t size() const noexcept { return entries().size(); }

  /// The value under exactly this key, or null. Valid as long as a handle to this dictionary lives.
  [[nodiscard]] const Value* find(const HashedKey& key) const noexcept {
    return isAbsent() ? nullptr : entries_->find(key);
  }
  [[nodiscard]] const Value* find(std::string_view key) const noexcept {
    return find(HashedKey(key));
  }

  [[nodiscard]] auto begin() const noexcept { return entries().begin(); }
  [[nodiscard]] auto end() const noexcept { return entries().end(); }

  /// The entries themselves; none when absent.
  [[nodiscard]] const Map& entries() const noexcept {
    static const Map none;
    return isAbsent() ? none : entries_->map;
  }

  /// Both handles lead to the same dictionary. Absent is the same object as absent.
  [[nodiscard]] bool isSameObject(const Dictionary& other) const noexcept {
    return entries_ == other.entries_;
  }

 private:
  // The map, and an index that is asked with a hash that was computed before: slots by the hash's
  // lower bits, at most half of them used, probed one after the other.
  struct Indexed {
    struct Slot {
      std::uint64_t hash = 0;
      const std::pair<const String, Value>* entry = nullptr;
    };

    explicit Indexed(Map entries)
        : map(std::move(entries)), index(std::bit_ceil(2 * map.size() + 1)) {
      for (const auto& entry : map) {
        const std::uint64_t hash = textHash(entry.first.view());
        std::size_t at = hash & mask();
        while (index[at].entry != nullptr) {
          at = (at + 1) & mask();
        }
        index[at] = {hash, &entry};
      }
    }

    [[nodiscard]] std::size_t mask() const noexcept { return index.size() - 1; }

    [[nodiscard]] const Value* find(const HashedKey& key) const noexcept {
      for (std::size_t at = key.hash & mask(); index[at].entry != nullptr; at = (at + 1) & mask()) {
        if (index[at].hash == key.hash && index[at].entry->first == key.text) {
          return &index[at].entry->second;
        }
      }
      return nullptr;
    }

    const Map map;
    std::vector<Slot> index;
  };

  std::shared_ptr<const Indexed> entries_;
};

}  // namespace orvanta
