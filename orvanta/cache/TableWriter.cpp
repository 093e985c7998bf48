#include <cerrno>
#include <string>
#include <string_view>

#include <orvanta/cache/CacheConfinement.h>
#include <orvanta/cache/OVStringCacheUtilities.h>
#include <orvanta/cache/ReplacingWriter.h>
#include <orvanta/cache/TableWriter.h>
#include <orvanta/platform/Platform.h>
#include <orvanta/text/PathString.h>

namespace orvanta {

namespace {

using platform::Platform;

FileOutcome replaceTable(const TableText& text, const String& path) {
  OVStringCacheUtilities::createDirectoryIfNeeded(
      URL::fileURLWithPath(path::stringByDeletingLastPathComponent(path), true));
  return replaceFile(*Platform::current().files, path, [&](platform::WritableFile& file) {
    strings::Utf16Writer writer(file);
    text(writer);
    return writer.finish();
  });
}

FileOutcome logged(FileOutcome outcome, const URL& file) {
  const std::string_view name =
      file.isAbsent() ? std::string_view("(null)") : file.absoluteString().view();
  std::string message = outcome ? "error saving strings file " : "file ";
  message += name;
  message += outcome ? "" : " written to cache";
  Platform::current().log->log(message);
  return outcome;
}

}  // namespace

FileOutcome writeTable(const TableText& text, const URL& file) {
  const String path = file.path();
  return logged(path.isAbsent() ? FileError{EINVAL, "the URL is not that of a file"_s}
                                : replaceTable(text, path),
                file);
}

FileOutcome writeTableInside(const URL& folder, const TableText& text, const URL& file) {
  if (file.isAbsent()) {
    return logged(FileError{EINVAL, "no URL can hold this language's name"_s}, file);
  }
  const String path = confinedPath(*Platform::current().files, file, folder);
  return logged(path.isAbsent()
                    ? FileError{EPERM, "the file would not be inside the cache folder"_s}
                    : replaceTable(text, path),
                file);
}

}  // namespace orvanta
