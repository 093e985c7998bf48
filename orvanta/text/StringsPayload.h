#pragma once

#include <string_view>
#include <utility>
#include <vector>

#include <orvanta/Export.h>
#include <orvanta/text/String.h>

namespace orvanta {

/// What a service sent: a text, a dictionary of further values, or nothing that the cache can use.
///
/// Made to be filled from any JSON library: a string becomes a text, an object a dictionary, and
/// everything else may stay nothing.
class ORVANTA_EXPORT StringsPayload {
 public:
  using Entry = std::pair<String, StringsPayload>;

  /// Nothing.
  StringsPayload() noexcept = default;
  // NOLINTNEXTLINE(google-explicit-constructor): a text is a payload.
  StringsPayload(String text) noexcept : text_(std::move(text)) {}

  [[nodiscard]] static StringsPayload dictionary(std::vector<Entry> entries = {});

  /// Adds an entry and makes this a dictionary if it was none. Keys are meant to differ; a look-up
  /// finds the last of those that do not.
  void add(String key, StringsPayload value);

  [[nodiscard]] bool isText() const noexcept { return !isDictionary_ && text_.isPresent(); }
  [[nodiscard]] bool isDictionary() const noexcept { return isDictionary_; }

  /// Absent unless this is a text.
  [[nodiscard]] const String& text() const noexcept { return text_; }
  /// In the order in which they were added; none unless this is a dictionary.
  [[nodiscard]] const std::vector<Entry>& entries() const noexcept { return entries_; }

  /// The value under the key; null when there is none or this is no dictionary.
  [[nodiscard]] const StringsPayload* valueForKey(std::string_view key) const noexcept;

  /// The value at the end of the path, which is taken apart at every "."; null when a level is
  /// missing.
  [[nodiscard]] const StringsPayload* valueForKeyPath(std::string_view path) const noexcept;

 private:
  String text_;
  bool isDictionary_ = false;
  std::vector<Entry> entries_;
};

}  // namespace orvanta
