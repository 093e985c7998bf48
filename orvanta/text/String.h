#pragma once

#include <compare>
#include <concepts>
#include <cstddef>
#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include <orvanta/Export.h>
#include <orvanta/text/LifetimeBound.h>
#include <orvanta/text/TextStorage.h>

namespace orvanta {

class String;

/// Text of another type that a `String` is compared with: `std::string`, `std::string_view` and
/// what converts to a view.
template <typename Text>
concept OtherText = !std::same_as<Text, String> && !std::same_as<Text, std::nullptr_t> &&
                    std::convertible_to<const Text&, std::string_view>;

/// A handle to one immutable UTF-8 text, or absent.
///
/// Absent and empty are different values everywhere. Copying a handle shares the text: copies are
/// the same object. A handle given out by a string table shares that table's storage, so a look-up
/// allocates nothing and the text outlives the table.
///
/// The text is whatever bytes it was made from; valid UTF-8 is not required. Different threads may
/// copy, read and destroy different handles to one text. One handle follows the usual rule: any
/// number of readers, or one writer.
///
/// A `constexpr` or `constinit` handle refers to the literal's own characters: it needs no code at
/// start-up and allocates nothing.
class ORVANTA_EXPORT String {
 public:
  /// Absent.
  constexpr String() noexcept = default;
  // NOLINTBEGIN(google-explicit-constructor): text converts to a handle wherever one is wanted.
  /// Absent.
  constexpr String(std::nullptr_t) noexcept {}
  /// A copy of `text`. An empty view gives the empty text, not absent. Throws `std::bad_alloc`.
  constexpr String(std::string_view text)
      // What a constant expression refers to lives as long as the process.
      : String(std::is_constant_evaluated() ? fromStatic(text) : copyOf(text)) {}
  /// A copy of `text`. Throws `std::bad_alloc`.
  String(const std::string& text) : String(std::string_view(text)) {}
  /// A copy of `text`; absent for a null pointer. Throws `std::bad_alloc`.
  constexpr String(const char* text)
      : String(text == nullptr ? String() : String(std::string_view(text))) {}
  // NOLINTEND(google-explicit-constructor)

  /// A handle to text that lives as long as the process, such as a literal. Never allocates. An
  /// empty view gives the empty text, not absent.
  [[nodiscard]] static constexpr String fromStatic(std::string_view text) noexcept {
    return {text.data() == nullptr ? "" : text.data(), text.size(), nullptr};
  }

  /// The first `size` characters of a block from `std::malloc`, which the last handle frees. Throws
  /// `std::bad_alloc`; the block then stays the caller's.
  [[nodiscard]] static String takingOver(char* block, std::size_t size);

  /// Shares the text.
  constexpr String(const String& other) noexcept
      : text_(other.text_), size_(other.size_), storage_(other.storage_) {
    if (storage_ != nullptr) {
      storage_->retain();
    }
  }
  /// Takes the text over; `other` is absent then.
  constexpr String(String&& other) noexcept
      : text_(std::exchange(other.text_, nullptr)),
        size_(std::exchange(other.size_, 0)),
        storage_(std::exchange(other.storage_, nullptr)) {}
  /// Shares the text.
  constexpr String& operator=(const String& other) noexcept { return *this = String(other); }
  /// Takes the text over; `other` is absent then.
  constexpr String& operator=(String&& other) noexcept {
    String incoming(std::move(other));
    std::swap(text_, incoming.text_);
    std::swap(size_, incoming.size_);
    std::swap(storage_, incoming.storage_);
    return *this;
  }
  constexpr ~String() {
    if (storage_ != nullptr) {
      storage_->release();
    }
  }

  /// Whether there is no text.
  [[nodiscard]] constexpr bool isAbsent() const noexcept { return text_ == nullptr; }
  /// Whether there is one, empty or not.
  [[nodiscard]] constexpr bool isPresent() const noexcept { return text_ != nullptr; }

  /// No characters: true for the empty text and for absent.
  [[nodiscard]] constexpr bool empty() const noexcept { return size_ == 0; }

  /// Length in bytes; 0 when absent.
  [[nodiscard]] constexpr std::size_t size() const noexcept { return size_; }

  /// Length in UTF-16 code units, the unit in which the rules about identifiers count; 0 when
  /// absent. Invalid bytes count as the U+FFFD characters that would replace them.
  [[nodiscard]] std::size_t utf16Length() const noexcept;

  /// The characters, valid as long as some handle to this text lives; empty, with null data, when
  /// absent.
  [[nodiscard]] constexpr std::string_view view() const noexcept ORVANTA_LIFETIME_BOUND {
    return {text_, size_};
  }
  /// A copy of the characters; empty when absent.
  [[nodiscard]] std::string str() const { return std::string(view()); }

  /// A handle to characters that lie inside this text, sharing its storage. Absent for a view with
  /// null data.
  [[nodiscard]] String part(std::string_view inside) const noexcept {
    if (storage_ != nullptr) {
      storage_->retain();
    }
    return {inside.data(), inside.size(), storage_};
  }

  /// Identity: both handles refer to the same characters in memory. Absent is the same object as
  /// absent. Texts made from equal literals may or may not be the same object.
  [[nodiscard]] constexpr bool isSameObject(const String& other) const noexcept {
    return text_ == other.text_ && size_ == other.size_;
  }

  /// Equality of characters; absent equals only absent.
  friend constexpr bool operator==(const String& a, const String& b) noexcept {
    return a.isAbsent() == b.isAbsent() && a.view() == b.view();
  }
  /// A null pointer compares as absent.
  friend constexpr bool operator==(const String& a, const char* b) noexcept {
    return b == nullptr ? a.isAbsent() : a == std::string_view(b);
  }
  /// Equality of characters; false where `a` is absent.
  template <OtherText Text>
  friend constexpr bool operator==(const String& a, const Text& b) noexcept {
    return a.isPresent() && a.view() == std::string_view(b);
  }

  /// Order of the bytes, which for valid UTF-8 is the order of the code points; absent stands
  /// before everything.
  friend constexpr std::strong_ordering operator<=>(const String& a, const String& b) noexcept {
    return a.isAbsent() || b.isAbsent() ? a.isPresent() <=> b.isPresent()
                                        : a.view().compare(b.view()) <=> 0;
  }
  /// A null pointer stands where absent does.
  friend constexpr std::strong_ordering operator<=>(const String& a, const char* b) noexcept {
    return a <=> (b == nullptr ? String() : fromStatic(b));
  }
  /// Order of the bytes.
  template <OtherText Text>
  friend constexpr std::strong_ordering operator<=>(const String& a, const Text& b) noexcept {
    return a <=> fromStatic(b);
  }

  /// Writes the characters; "(absent)" when absent.
  friend ORVANTA_EXPORT std::ostream& operator<<(std::ostream& out, const String& text);

 private:
  // Takes over one count of `storage`.
  constexpr String(const char* text, std::size_t size, TextStorage* storage) noexcept
      : text_(text), size_(size), storage_(storage) {}

  static String copyOf(std::string_view text);

  const char* text_ = nullptr;
  std::size_t size_ = 0;
  TextStorage* storage_ = nullptr;
};

inline namespace literals {

/// A handle to a literal's own characters: no copy, no allocation.
constexpr String operator""_s(const char* text, std::size_t size) noexcept {
  return String::fromStatic({text, size});
}

}  // namespace literals

}  // namespace orvanta

/// @cond
/// Differs from run to run; see `orvanta::textHash`.
template <>
struct ORVANTA_EXPORT std::hash<orvanta::String> {
  /// The hash of the characters.
  [[nodiscard]] std::size_t operator()(const orvanta::String& text) const noexcept;
};
/// @endcond
