#pragma once

#include <cstddef>
#include <initializer_list>
#include <memory>
#include <ostream>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include <orvanta/Export.h>
#include <orvanta/text/String.h>

namespace orvanta {

/// An immutable, ordered list of strings behind a shared handle, or absent.
///
/// An absent list and an empty one are different values. Copying a handle shares the list; nothing
/// can change it afterwards, so it may be read from any thread.
class ORVANTA_EXPORT StringList {
 public:
  /// Absent. For the empty list see `emptyList`.
  StringList() noexcept = default;
  StringList(std::initializer_list<String> items)
      : StringList(std::span<const String>(items.begin(), items.size())) {}
  /// A snapshot of `items`, present even when there are none.
  explicit StringList(std::span<const String> items);
  explicit StringList(const std::vector<String>& items)
      : StringList(std::span<const String>(items)) {}

  /// Makes a list entry by entry.
  class Builder;

  [[nodiscard]] static StringList emptyList() { return StringList(std::span<const String>()); }

  [[nodiscard]] bool isAbsent() const noexcept { return items_ == nullptr; }
  [[nodiscard]] bool isPresent() const noexcept { return items_ != nullptr; }

  /// No entries: true for the empty list and for absent.
  [[nodiscard]] bool empty() const noexcept { return size_ == 0; }
  [[nodiscard]] std::size_t size() const noexcept { return size_; }
  [[nodiscard]] const String* begin() const noexcept { return items_.get(); }
  [[nodiscard]] const String* end() const noexcept { return items_.get() + size_; }
  /// `index` must be below `size`.
  [[nodiscard]] const String& operator[](std::size_t index) const noexcept {
    return items_.get()[index];
  }
  /// The list must not be empty.
  [[nodiscard]] const String& front() const noexcept { return items_[0]; }

  /// Both handles lead to the same list. Absent is the same object as absent.
  [[nodiscard]] bool isSameObject(const StringList& other) const noexcept {
    return items_ == other.items_;
  }

  /// Equality of entries in order; absent equals only absent.
  friend ORVANTA_EXPORT bool operator==(const StringList& a, const StringList& b) noexcept;
  friend ORVANTA_EXPORT std::ostream& operator<<(std::ostream& out, const StringList& list);

 private:
  std::shared_ptr<const String[]> items_;
  std::size_t size_ = 0;
};

class StringList::Builder {
 public:
  /// No more than `most` entries will be added.
  explicit Builder(std::size_t most) noexcept : most_(most) {}

  void add(String item) {
    if (items_ == nullptr) {
      items_ = std::make_shared<String[]>(most_);
    }
    items_.get()[size_++] = std::move(item);
  }

  /// What was added; absent when that is nothing.
  [[nodiscard]] StringList build() && noexcept {
    StringList list;
    list.items_ = std::move(items_);
    list.size_ = size_;
    return list;
  }

 private:
  std::size_t most_;
  std::size_t size_ = 0;
  std::shared_ptr<String[]> items_;
};

/// The pieces of `text` between the separators, empty ones kept; absent when `text` is absent.
[[nodiscard]] ORVANTA_EXPORT StringList componentsSeparatedBy(char separator, const String& text);

/// The entries with `separator` between them; absent when `list` is absent.
[[nodiscard]] ORVANTA_EXPORT String componentsJoinedBy(char separator, const StringList& list);

}  // namespace orvanta
