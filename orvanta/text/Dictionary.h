#pragma once

#include <bit>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include <orvanta/text/LifetimeBound.h>
#include <orvanta/text/String.h>
#include <orvanta/text/TextHash.h>

namespace orvanta {

/// An immutable dictionary from text to `Value` behind a shared handle, or absent.
///
/// An absent dictionary and an empty one are different values. The order of entries is unspecified.
/// Copying a handle shares the dictionary. Nothing changes a dictionary once it is made, so
/// different threads may read it through handles of their own.
///
/// `find` and iterators do not compile on a temporary handle: their results would dangle. A
/// range-based `for` over a temporary is fine.
template <typename Value>
class Dictionary {
 public:
  /// The mutable form, in which the entries are collected.
  using Map = std::unordered_map<String, Value, TextHash, TextEqual>;

  /// Absent.
  Dictionary() noexcept = default;
  /// Throws `std::bad_alloc`.
  explicit Dictionary(Map entries)
      : entries_(std::make_shared<const Indexed>(std::move(entries))) {}
  /// Of several entries with one key the first counts. Throws `std::bad_alloc`.
  Dictionary(std::initializer_list<std::pair<const String, Value>> entries)
      : Dictionary(Map(entries)) {}

  /// Whether there is no dictionary.
  [[nodiscard]] bool isAbsent() const noexcept { return entries_ == nullptr; }
  /// Whether there is one, empty or not.
  [[nodiscard]] bool isPresent() const noexcept { return entries_ != nullptr; }
  /// No entries: true for the empty dictionary and for absent.
  [[nodiscard]] bool empty() const noexcept { return size() == 0; }
  /// The number of entries; 0 for absent.
  [[nodiscard]] std::size_t size() const noexcept { return isAbsent() ? 0 : entries_->map.size(); }

  /// The value under exactly this key, or null. Valid as long as some handle to this dictionary
  /// lives.
  [[nodiscard]] const Value* find(const HashedKey& key) const& noexcept ORVANTA_LIFETIME_BOUND {
    return isAbsent() ? nullptr : entries_->find(key);
  }
  /// The same for a key that is not hashed yet.
  [[nodiscard]] const Value* find(std::string_view key) const& noexcept ORVANTA_LIFETIME_BOUND {
    return find(HashedKey(key));
  }
  /// Null for an absent key.
  template <std::same_as<String> Key>
  [[nodiscard]] const Value* find(const Key& key) const& noexcept ORVANTA_LIFETIME_BOUND {
    return key.isAbsent() ? nullptr : find(HashedKey(key.view()));
  }
  template <typename Key>
  const Value* find(const Key& key) const&& = delete;

  /// Whether there is an entry under exactly this key; false for an absent key.
  template <typename Key>
  [[nodiscard]] bool contains(const Key& key) const noexcept {
    return find(key) != nullptr;
  }

  /// Iterators over pairs of key and value, valid as long as some handle to this dictionary lives.
  [[nodiscard]] auto begin() const& noexcept ORVANTA_LIFETIME_BOUND {
    return isAbsent() ? typename Map::const_iterator() : entries_->map.begin();
  }
  /// See `begin`.
  [[nodiscard]] auto end() const& noexcept ORVANTA_LIFETIME_BOUND {
    return isAbsent() ? typename Map::const_iterator() : entries_->map.end();
  }
  void begin() const&& = delete;
  void end() const&& = delete;

  /// Identity: both handles refer to the same dictionary. Absent is the same object as absent.
  [[nodiscard]] bool isSameObject(const Dictionary& other) const noexcept {
    return entries_ == other.entries_;
  }

 private:
  // The map, and an index that is searched with a hash computed before. Open addressing: a slot by
  // the hash's lower bits, linear probing, at most half of the slots used. For the benchmark's row
  // `match`, which takes a quarter longer with the map alone.
  struct Indexed {
    struct Slot {
      std::uint64_t hash = 0;
      const std::pair<const String, Value>* entry = nullptr;
    };

    explicit Indexed(Map entries)
        : map(std::move(entries)), index(std::bit_ceil(2 * map.size() + 1)) {
      for (const auto& entry : map) {
        const std::uint64_t hash = textHash(entry.first.view());
        std::size_t at = firstSlot(hash);
        while (index[at].entry != nullptr) {
          at = slotBehind(at);
        }
        index[at] = {hash, &entry};
      }
    }

    [[nodiscard]] std::size_t firstSlot(std::uint64_t hash) const noexcept {
      return static_cast<std::size_t>(hash) & (index.size() - 1);
    }
    [[nodiscard]] std::size_t slotBehind(std::size_t at) const noexcept {
      return (at + 1) & (index.size() - 1);
    }

    [[nodiscard]] const Value* find(const HashedKey& key) const noexcept {
      for (std::size_t at = firstSlot(key.hash); index[at].entry != nullptr; at = slotBehind(at)) {
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
