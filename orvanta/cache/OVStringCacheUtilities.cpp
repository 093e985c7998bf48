#include <string>

#include <orvanta/cache/OVStringCacheUtilities.h>
#include <orvanta/cache/TableWriter.h>
#include <orvanta/platform/Platform.h>
#include <orvanta/strings/writer/StringsFileText.h>
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
  if (directory.isPresent()) {
    static_cast<void>(Platform::current().files->createDirectoryAtURL(directory));
  }
}

void createDirectoryIfNeededForFile(const URL& file) {
  createDirectoryIfNeeded(directoryFromFileURL(file));
}

URL directoryFromFileURL(const URL& file) {
  return URL::URLWithString(path::stringByDeletingLastPathComponent(file.absoluteString()));
}

void clearFilesFromDirectory(const URL& directory) {
  const Platform& platform = Platform::current();
  for (const URL& entry : platform.files->contentsOfDirectoryAtURL(directory)) {
    if (const auto error = platform.files->removeItemAtURL(entry)) {
      std::string message = "Error " + std::to_string(error->code) + " deleting file:";
      message += error->localizedDescription.view();
      platform.log->log(message);
    }
  }
}

URL stringsFileURLForLanguage(const URL& directory, const String& language) {
  if (directory.isAbsent()) {
    return {};
  }
  std::string text = directory.absoluteString().str();
  if (text.ends_with('/')) {
    text.pop_back();
  }
  text += '/';
  text += language.isAbsent() ? std::string_view("(null)") : language.view();
  text += ".lproj/Localizable.strings";
  return URL::URLWithString(text);
}

String localizableStringsFile(const StringsPayload& table) {
  std::string text;
  strings::forEachPieceOfStringsFile(table, [&](std::string_view piece) { text += piece; });
  return text;
}

void saveLanguageStringForLanguage(const String& text, const String& /*language*/,
                                   const URL& file) {
  if (text.isPresent()) {
    static_cast<void>(
        writeTable([&](strings::Utf16Writer& writer) { writer.append(text.view()); }, file));
  }
}

String cleanedString(const String& text) {
  return stringByTrimming(Platform::current().locales->lowercaseString(text),
                          CharacterSet::whitespaceAndNewline);
}

}  // namespace orvanta::OVStringCacheUtilities
