#pragma once

#include <concepts>
#include <string_view>
#include <utility>
#include <vector>

#include <orvanta/Export.h>
#include <orvanta/text/LifetimeBound.h>
#include <orvanta/text/String.h>

namespace orvanta {

/// What a service sent: a text, a dictionary of further values, or nothing that the cache can use.
///
/// Made to be filled from any JSON library: a string becomes a text, an object a dictionary, and
/// everything else may stay nothing. Nesting may be arbitrarily deep: no operation recurses. An
/// ordinary value: copies are independent, and different threads may read one payload.
class ORVANTA_EXPORT StringsPayload {
 public:
  /// A key and its value.
  using Entry = std::pair<String, StringsPayload>;

  /// Nothing.
  StringsPayload() noexcept = default;
  /// A text; nothing when `text` is absent.
  // NOLINTNEXTLINE(google-explicit-constructor): a text is a payload.
  StringsPayload(String text) noexcept : text_(std::move(text)) {}
  /// The same from a literal or a standard string. Throws `std::bad_alloc`.
  template <typename Text>
  requires(!std::same_as<Text, String> && std::convertible_to<const Text&, String>)
      // NOLINTNEXTLINE(google-explicit-constructor): as above.
      StringsPayload(const Text& text)
      : text_(text) {}

  /// Copying takes time and memory linear in the number of entries, and throws `std::bad_alloc`.
  StringsPayload(const StringsPayload& other);
  /// Takes everything over; `other` is nothing then.
  StringsPayload(StringsPayload&& other) noexcept;
  /// See the copy constructor.
  StringsPayload& operator=(const StringsPayload& other);
  /// Takes everything over; `other` is nothing then.
  StringsPayload& operator=(StringsPayload&& other) noexcept;
  ~StringsPayload();

  /// A dictionary of these entries.
  [[nodiscard]] static StringsPayload dictionary(std::vector<Entry> entries = {});

  /// Adds an entry and makes this a dictionary if it was none. Of several entries with one key, a
  /// look-up finds the last. Throws `std::bad_alloc`.
  void add(String key, StringsPayload value);

  /// Whether this is a text.
  [[nodiscard]] bool isText() const noexcept { return !isDictionary_ && text_.isPresent(); }
  /// Whether this is a dictionary, empty or not.
  [[nodiscard]] bool isDictionary() const noexcept { return isDictionary_; }

  /// Absent unless this is a text.
  [[nodiscard]] const String& text() const& noexcept ORVANTA_LIFETIME_BOUND { return text_; }
  /// The same of a temporary payload.
  [[nodiscard]] String text() && noexcept { return std::move(text_); }

  /// In the order in which they were added; none unless this is a dictionary. Valid until the
  /// payload changes.
  [[nodiscard]] const std::vector<Entry>& entries() const& noexcept ORVANTA_LIFETIME_BOUND {
    return entries_;
  }
  const std::vector<Entry>& entries() const&& = delete;

  /// The value under the key; null when there is none or this is no dictionary. Valid until the
  /// payload changes.
  [[nodiscard]] const StringsPayload* valueForKey(std::string_view key) const& noexcept
      ORVANTA_LIFETIME_BOUND;
  const StringsPayload* valueForKey(std::string_view key) const&& = delete;

  /// The value at the end of the path, which is split at every "."; null when a level is missing.
  /// Valid until the payload changes.
  [[nodiscard]] const StringsPayload* valueForKeyPath(std::string_view path) const& noexcept
      ORVANTA_LIFETIME_BOUND;
  const StringsPayload* valueForKeyPath(std::string_view path) const&& = delete;

 private:
  String text_;
  bool isDictionary_ = false;
  std::vector<Entry> entries_;
};

}  // namespace orvanta
