#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>

#include <orvanta/Export.h>
#include <orvanta/text/TextStorage.h>

namespace orvanta {

/// A cheap handle to one immutable UTF-8 text, or absent.
///
/// Absent and empty are different values everywhere. Copying a handle shares the text: copies are
/// the same object, and a handle given out by a string table shares that table's storage, so that
/// a lookup allocates nothing and the text outlives the table's replacement.
///
/// The text is whatever bytes it was made from; nothing here requires valid UTF-8. Handles may be
/// copied and read from any thread, one handle by one thread at a time.
class ORVANTA_EXPORT String {
 public:
  /// Absent.
  String() noexcept = default;
  // NOLINTBEGIN(google-explicit-constructor): text converts to a handle wherever one is wanted.
  String(std::nullptr_t) noexcept {}
  /// A copy of `text`; an empty view gives the empty text, not absent.
  String(std::string_view text);
  String(const std::string& text) : String(std::string_view(text)) {}
  /// A copy of `text`; absent for a null pointer.
  String(const char* text);
  // NOLINTEND(google-explicit-constructor)

  /// A handle to text that lives as long as the process, such as a literal. Never allocates.
  static String fromStatic(std::string_view text) noexcept {
    return {text.data(), text.size(), nullptr};
  }

  /// Text that stands at the start of a block of `std::malloc`, which its last handle frees.
  static String takingOver(char* block, std::size_t size);

  String(const String& other) noexcept
      : text_(other.text_), size_(other.size_), storage_(other.storage_) {
    if (storage_ != nullptr) {
      storage_->retain();
    }
  }
  String(String&& other) noexcept
      : text_(std::exchange(other.text_, nullptr)),
        size_(std::exchange(other.size_, 0)),
        storage_(std::exchange(other.storage_, nullptr)) {}
  String& operator=(const String& other) noexcept { return *this = String(other); }
  String& operator=(String&& other) noexcept {
    String incoming(std::move(other));
    std::swap(text_, incoming.text_);
    std::swap(size_, incoming.size_);
    std::swap(storage_, incoming.storage_);
    return *this;
  }
  ~String() {
    if (storage_ != nullptr) {
      storage_->release();
    }
  }

  [[nodiscard]] bool isAbsent() const noexcept { return text_ == nullptr; }
  [[nodiscard]] bool isPresent() const noexcept { return text_ != nullptr; }

  /// No characters: true for the empty text and for absent, as a length of 0 is.
  [[nodiscard]] bool empty() const noexcept { return size_ == 0; }

  /// Length in bytes; 0 when absent.
  [[nodiscard]] std::size_t size() const noexcept { return size_; }

  /// Length in UTF-16 code units, the unit in which the rules about identifiers count; 0 when
  /// absent. A byte that belongs to no valid sequence counts as one unit.
  [[nodiscard]] std::size_t utf16Length() const noexcept;

  /// The characters, valid as long as some handle to this text lives; empty when absent.
  [[nodiscard]] std::string_view view() const noexcept { return {text_, size_}; }
  [[nodiscard]] std::string str() const { return std::string(view()); }

  /// A handle to characters that lie inside this text, sharing its storage.
  [[nodiscard]] String part(std::string_view inside) const noexcept {
    if (storage_ != nullptr) {
      storage_->retain();
    }
    return {inside.data(), inside.size(), storage_};
  }

  /// Identity: both handles lead to the same text object. Absent is the same object as absent.
  [[nodiscard]] bool isSameObject(const String& other) const noexcept {
    return text_ == other.text_ && size_ == other.size_;
  }

  /// Equality of characters; absent equals only absent.
  friend bool operator==(const String& a, const String& b) noexcept {
    return a.isAbsent() == b.isAbsent() && a.view() == b.view();
  }
  friend bool operator==(const String& a, std::string_view b) noexcept {
    return a.isPresent() && a.view() == b;
  }
  friend bool operator==(const String& a, const char* b) noexcept {
    return b == nullptr ? a.isAbsent() : a == std::string_view(b);
  }

  friend ORVANTA_EXPORT std::ostream& operator<<(std::ostream& out, const String& text);

 private:
  // Takes over one count of `storage`.
  String(const char* text, std::size_t size, TextStorage* storage) noexcept
      : text_(text), size_(size), storage_(storage) {}

  const char* text_ = nullptr;
  std::size_t size_ = 0;
  TextStorage* storage_ = nullptr;
};

inline namespace literals {

/// A handle to a literal's own characters: no copy, no allocation.
inline String operator""_s(const char* text, std::size_t size) noexcept {
  return String::fromStatic({text, size});
}

}  // namespace literals

}  // namespace orvanta
