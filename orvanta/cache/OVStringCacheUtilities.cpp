#include <cerrno>
#include <string>

#include <orvanta/cache/CachePath.h>
#include <orvanta/cache/FolderMaker.h>
#include <orvanta/cache/LoggedRemoval.h>
#include <orvanta/cache/OVStringCacheUtilities.h>
#include <orvanta/cache/StringsFileReplacement.h>
#include <orvanta/platform/Platform.h>
#include <orvanta/strings/writer/StringsFile.h>
#include <orvanta/text/CharacterSet.h>
#include <orvanta/text/PathString.h>

namespace orvanta::OVStringCacheUtilities {

using platform::Platform;

URL cacheDirectoryURL() {
  URL url = Platform::current().files->cachesDirectoryURL().URLByAppendingPathComponent(
      cacheDirectoryName, true);
  createDirectoryIfNeeded(url);
  return url;
}

void createDirectoryIfNeeded(const URL& directory) {
  const String path = directory.path();
  if (path.isPresent()) {
    static_cast<void>(FolderMaker(*Platform::current().files).open(path));
  }
}

void createDirectoryIfNeededForFile(const URL& file) {
  createDirectoryIfNeeded(directoryFromFileURL(file));
}

URL directoryFromFileURL(const URL& file) {
  return URL::URLWithString(path::stringByDeletingLastPathComponent(file.absoluteString()));
}

void clearFilesFromDirectory(const URL& directory) {
  for (const URL& entry : Platform::current().files->contentsOfDirectoryAtURL(directory).entries) {
    removeItemLoggingFailure(entry);
  }
}

URL stringsFileURLForLanguage(const URL& directory, const String& language) {
  if (directory.isAbsent() || language.isAbsent()) {
    return {};
  }
  std::string text = directory.absoluteString().str();
  if (text.ends_with('/')) {
    text.pop_back();
  }
  text += '/';
  text += language.view();
  text += ".lproj/Localizable.strings";
  return URL::URLWithString(text);
}

String localizableStringsFile(const StringsPayload& table) {
  std::string text;
  strings::appendStringsFile(table, [&](std::string_view piece) { text += piece; });
  return text;
}

void saveLanguageStringForLanguage(const String& text, const String& /*language*/,
                                   const URL& file) {
  if (text.isAbsent()) {
    return;
  }
  const String path = pathToWrite(file);
  Replacement replacement{false, Status(EINVAL, "the URL names no file"_s)};
  if (path.isPresent()) {
    replacement = withOneRetry([&]() -> Replacement {
      FolderMaker maker(*Platform::current().files);
      const platform::Folder::Opening folder =
          maker.open(path::stringByDeletingLastPathComponent(path));
      return folder.status.ok()
                 ? replaceStringsFile(*folder.folder, path::lastPathComponent(path), text.view())
                 : Replacement{false, folder.status};
    });
  }
  logReplacement(replacement, file);
}

String cleanedString(const String& text) {
  return stringByTrimming(Platform::current().locales->lowercaseString(text),
                          CharacterSet::whitespaceAndNewline);
}

}  // namespace orvanta::OVStringCacheUtilities
