#pragma once

#include <orvanta/Export.h>
#include <orvanta/text/String.h>

/// The rules by which texts are taken apart as paths. They look at the text alone, never at a
/// disk, and serve paths and the text of URLs alike. Absent gives absent.
namespace orvanta::path {

/// The part after the last "/", trailing "/" left out of account; "/" itself for the root.
[[nodiscard]] ORVANTA_EXPORT String lastPathComponent(const String& text);

/// The text without the last component and the separator before it. The parent of a component
/// right under the root is "/" (behind a "file://", if there is one).
[[nodiscard]] ORVANTA_EXPORT String stringByDeletingLastPathComponent(const String& text);

/// The text without a last "." and what follows it. A component that begins with its only "." or
/// ends with one has no extension.
[[nodiscard]] ORVANTA_EXPORT String stringByDeletingPathExtension(const String& text);

/// `folder` and `component` with one "/" between them.
[[nodiscard]] ORVANTA_EXPORT String stringByAppendingPathComponent(const String& folder,
                                                                   std::string_view component);

}  // namespace orvanta::path
