#pragma once

#include <cstddef>
#include <initializer_list>
#include <iosfwd>
#include <memory>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include <orvanta/Export.h>
#include <orvanta/text/LifetimeBound.h>
#include <orvanta/text/String.h>

namespace orvanta {

/// An immutable, ordered list of strings behind a shared handle, or absent.
///
/// An absent list and an empty one are different values. Copying a handle shares the list. Nothing
/// changes a list once it is made, so different threads may read it through handles of their own.
class ORVANTA_EXPORT StringList {
 public:
  /// Absent. For the empty list see `emptyList`.
  StringList() noexcept = default;
  /// A list of these entries, present even when there are none. Throws `std::bad_alloc`.
  StringList(std::initializer_list<String> items)
      : StringList(std::span<const String>(items.begin(), items.size())) {}
  /// A snapshot of `items`, present even when there are none. Throws `std::bad_alloc`.
  explicit StringList(std::span<const String> items);
  /// The same. Throws `std::bad_alloc`.
  explicit StringList(const std::vector<String>& items)
      : StringList(std::span<const String>(items)) {}

  /// Makes a list entry by entry.
  class Builder;

  /// A list without entries that is present.
  [[nodiscard]] static StringList emptyList() { return StringList(std::span<const String>()); }

  /// Whether there is no list.
  [[nodiscard]] bool isAbsent() const noexcept { return items_ == nullptr; }
  /// Whether there is one, empty or not.
  [[nodiscard]] bool isPresent() const noexcept { return items_ != nullptr; }

  /// No entries: true for the empty list and for absent.
  [[nodiscard]] bool empty() const noexcept { return size_ == 0; }
  /// The number of entries; 0 for absent.
  [[nodiscard]] std::size_t size() const noexcept { return size_; }

  /// Iterators stay valid as long as some handle to this list lives. Not for a temporary list,
  /// whose iterators would dangle; a range-based `for` over one is fine.
  [[nodiscard]] const String* begin() const& noexcept ORVANTA_LIFETIME_BOUND {
    return items_.get();
  }
  /// See `begin`.
  [[nodiscard]] const String* end() const& noexcept ORVANTA_LIFETIME_BOUND {
    return items_.get() + size_;
  }
  const String* begin() const&& = delete;
  const String* end() const&& = delete;

  /// `index` must be below `size`. A temporary list gives a handle of the caller's own.
  [[nodiscard]] const String& operator[](std::size_t index) const& noexcept ORVANTA_LIFETIME_BOUND {
    return items_.get()[index];
  }
  /// The same of a temporary list, as a handle of the caller's own.
  [[nodiscard]] String operator[](std::size_t index) const&& noexcept {
    return items_.get()[index];
  }
  /// The first entry; the list must not be empty.
  [[nodiscard]] const String& front() const& noexcept ORVANTA_LIFETIME_BOUND { return items_[0]; }
  /// The same of a temporary list, as a handle of the caller's own.
  [[nodiscard]] String front() const&& noexcept { return items_[0]; }

  /// Identity: both handles refer to the same list. Absent is the same object as absent.
  [[nodiscard]] bool isSameObject(const StringList& other) const noexcept {
    return items_ == other.items_;
  }

  /// Equality of entries in order; absent equals only absent.
  friend ORVANTA_EXPORT bool operator==(const StringList& a, const StringList& b) noexcept;
  /// Writes "[a, b]"; "(absent)" when absent.
  friend ORVANTA_EXPORT std::ostream& operator<<(std::ostream& out, const StringList& list);

 private:
  std::shared_ptr<const String[]> items_;
  std::size_t size_ = 0;
};

/// Makes a list entry by entry, in one allocation: the benchmark's row `match` takes a third longer
/// with a vector that is copied.
class StringList::Builder {
 public:
  /// At most `most` calls of `add` may follow.
  explicit Builder(std::size_t most) noexcept : most_(most) {}

  /// Throws `std::bad_alloc`, at the first call only.
  void add(String item) {
    if (items_ == nullptr) {
      items_ = std::make_shared<String[]>(most_);
    }
    items_.get()[size_++] = std::move(item);
  }

  /// The list of what was added; absent when nothing was.
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
/// The pieces are copies. Throws `std::bad_alloc`.
[[nodiscard]] ORVANTA_EXPORT StringList componentsSeparatedBy(char separator, const String& text);

/// The entries with `separator` between them, an absent entry as an empty one; absent when `list`
/// is absent. Throws `std::bad_alloc`.
[[nodiscard]] ORVANTA_EXPORT String componentsJoinedBy(char separator, const StringList& list);

}  // namespace orvanta
