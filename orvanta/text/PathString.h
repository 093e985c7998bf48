#pragma once

#include <orvanta/text/String.h>

/// Path operations on text: they never look at a disk, and take paths and the texts of URLs alike.
/// An absent text gives absent. What they make throws `std::bad_alloc`.
namespace orvanta::path {

/// The part after the last "/", trailing "/" left out of account; "/" itself for the root.
[[nodiscard]] String lastPathComponent(const String& text);

/// The text without its last component and the separator before it. The parent of a component right
/// under the root is the root: "/", and in a "file:" URL the scheme, the authority and "/".
[[nodiscard]] String stringByDeletingLastPathComponent(const String& text);

/// The text without its last "." and what follows it. A component that begins or ends with its last
/// "." has no extension.
[[nodiscard]] String stringByDeletingPathExtension(const String& text);

/// `folder` and `component` with one "/" between them.
[[nodiscard]] String stringByAppendingPathComponent(const String& folder,
                                                    std::string_view component);

}  // namespace orvanta::path
