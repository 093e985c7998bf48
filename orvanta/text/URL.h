#pragma once

#include <string_view>

#include <orvanta/Export.h>
#include <orvanta/text/String.h>

namespace orvanta {

/// A URL, kept as its text, or absent.
///
/// The text is never normalised: percent escapes, "..", and a trailing "/" stay as they were
/// written, and two URLs are equal when their texts are. Only `path` decodes.
class ORVANTA_EXPORT URL {
 public:
  /// Absent.
  URL() noexcept = default;

  /// Absent when `text` is absent, empty, or holds what no URL may hold: a blank or control
  /// character, a non-ASCII byte, one of "<>[\]^`{|}, or a "%" without two hexadecimal digits.
  [[nodiscard]] static URL URLWithString(const String& text);

  /// The "file:" URL of an absolute path; whatever a URL may not hold is escaped. A folder's text
  /// ends in "/". Absent when `path` is absent.
  [[nodiscard]] static URL fileURLWithPath(const String& path, bool isDirectory);

  /// This URL with one more component, escaped, behind exactly one "/". Absent stays absent.
  [[nodiscard]] URL URLByAppendingPathComponent(std::string_view component, bool isDirectory) const;

  [[nodiscard]] bool isAbsent() const noexcept { return text_.isAbsent(); }
  [[nodiscard]] bool isPresent() const noexcept { return text_.isPresent(); }
  [[nodiscard]] bool isFileURL() const noexcept { return text_.view().starts_with("file:"); }

  /// The whole text; absent when the URL is.
  [[nodiscard]] const String& absoluteString() const noexcept { return text_; }

  /// The path with its escapes decoded, without query, fragment and trailing "/". Absent when the
  /// URL is absent, is no "file:" URL, or holds an escaped NUL, which no path can.
  [[nodiscard]] String path() const;

  friend bool operator==(const URL& a, const URL& b) noexcept { return a.text_ == b.text_; }

 private:
  explicit URL(String text) noexcept : text_(std::move(text)) {}

  String text_;
};

}  // namespace orvanta
