#pragma once

#include <iosfwd>
#include <string_view>
#include <utility>

#include <orvanta/Export.h>
#include <orvanta/text/LifetimeBound.h>
#include <orvanta/text/String.h>

namespace orvanta {

/// A URL, kept as its text, or absent. An immutable value, as `String` is.
///
/// The text is never normalised: percent escapes, "..", and a trailing "/" stay as they were
/// written, and two URLs are equal when their texts are. Only `path` decodes.
class ORVANTA_EXPORT URL {
 public:
  /// Absent.
  constexpr URL() noexcept = default;

  /// Absent when `text` is absent or empty, or holds what no URL may hold: a blank or control
  /// character, a non-ASCII byte, one of "<>[\]^`{|}, or a "%" without two hexadecimal digits.
  [[nodiscard]] static URL URLWithString(const String& text);

  /// The "file:" URL of an absolute path; characters that a URL may not hold are escaped. A
  /// folder's text ends in "/". Absent when `path` is absent.
  [[nodiscard]] static URL fileURLWithPath(const String& path, bool isDirectory);

  /// This URL with one more component, escaped, behind exactly one "/". A folder's text ends in
  /// "/". Absent stays absent.
  [[nodiscard]] URL URLByAppendingPathComponent(std::string_view component, bool isDirectory) const;

  /// Whether there is no URL.
  [[nodiscard]] constexpr bool isAbsent() const noexcept { return text_.isAbsent(); }
  /// Whether there is one.
  [[nodiscard]] constexpr bool isPresent() const noexcept { return text_.isPresent(); }
  /// The same as `isAbsent`: no URL has an empty text.
  [[nodiscard]] constexpr bool empty() const noexcept { return text_.empty(); }
  /// Whether the scheme is "file:".
  [[nodiscard]] bool isFileURL() const noexcept { return text_.view().starts_with("file:"); }

  /// The whole text; absent when the URL is.
  [[nodiscard]] const String& absoluteString() const& noexcept ORVANTA_LIFETIME_BOUND {
    return text_;
  }
  /// The same of a temporary URL.
  [[nodiscard]] String absoluteString() && noexcept { return std::move(text_); }

  /// The path with its escapes decoded, without query, fragment and trailing "/". Absent when the
  /// URL is absent, is no "file:" URL, or holds an escaped NUL, which no path can.
  [[nodiscard]] String path() const;

  /// Equality of texts; absent equals only absent.
  friend bool operator==(const URL& a, const URL& b) noexcept { return a.text_ == b.text_; }
  /// Writes the text; "(absent)" when absent.
  friend ORVANTA_EXPORT std::ostream& operator<<(std::ostream& out, const URL& url);

 private:
  explicit URL(String text) noexcept : text_(std::move(text)) {}

  String text_;
};

}  // namespace orvanta
