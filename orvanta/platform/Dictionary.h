#pragma once

#include <cstddef>
#include <initializer_list>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <utility>

#include <orvanta/platform/String.h>
#include <orvanta/platform/TextHash.h>

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
  explicit Dictionary(Map entries) : entries_(std::make_shared<const Map>(std::move(entries))) {}
  Dictionary(std::initializer_list<std::pair<const String, Value>> entries)
      : Dictionary(Map(entries)) {}

  [[nodiscard]] bool isAbsent() const noexcept { return entries_ == nullptr; }
  [[nodiscard]] bool isPresent() const noexcept { return entries_ != nullptr; }
  [[nodiscard]] bool empty() const noexcept { return size() == 0; }
  [[nodiscard]] std::size_t size() const noexcept { return isAbsent() ? 0 : entries_->size(); }

  /// The value under exactly this key, or null. Valid as long as a handle to this dictionary lives.
  [[nodiscard]] const Value* find(std::string_view key) const {
    if (isAbsent()) {
      return nullptr;
    }
    const auto found = entries_->find(key);
    return found == entries_->end() ? nullptr : &found->second;
  }

  [[nodiscard]] auto begin() const noexcept { return entries().begin(); }
  [[nodiscard]] auto end() const noexcept { return entries().end(); }

  /// The entries themselves; none when absent.
  [[nodiscard]] const Map& entries() const noexcept {
    static const Map none;
    return isAbsent() ? none : *entries_;
  }

  /// Both handles lead to the same dictionary. Absent is the same object as absent.
  [[nodiscard]] bool isSameObject(const Dictionary& other) const noexcept {
    return entries_ == other.entries_;
  }

 private:
  std::shared_ptr<const Map> entries_;
};

}  // namespace orvanta
