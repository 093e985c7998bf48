#include <cstddef>
#include <memory>
#include <span>

#include <orvanta/fonts/ResourceFace.h>
#include <orvanta/platform/Platform.h>
#include <orvanta/strings/ReadBuffer.h>

namespace orvanta::localizationUtilities {

namespace {

constexpr double kSizeAtCreation = 17.0;

// What most fonts need. Larger ones are read as well.
constexpr std::size_t kExpectedSize = std::size_t{512} * 1024;

}  // namespace

void ovLoadFontNamed(const String& name) {
  const platform::Platform& platform = platform::Platform::current();
  const std::shared_ptr<platform::Bundle> library = platform.bundles->bundleForLibrary();
  if (library == nullptr) {
    return;
  }
  const std::unique_ptr<platform::ReadableFile> file =
      platform.files->openFileForReading(library->pathForResource(name, "ttf"_s));
  strings::ReadBuffer data;
  // No data when the file is missing or cannot be read to its end.
  static_cast<void>(file != nullptr && data.read(*file, kExpectedSize));
  platform.fonts->registerFontData(std::as_bytes(std::span(data.view())));
}

FontHandle ResourceFace::font() {
  if (font_ == nullptr) {
    ovLoadFontNamed(fileName_);
    font_ = platform::Platform::current().fonts->fontWithName(fontName_, kSizeAtCreation);
  }
  return font_;
}

FontHandle ResourceFace::fontWithSize(double size) {
  const FontHandle face = font();
  return face == nullptr ? nullptr : derived_.fontWithSize(face, size);
}

}  // namespace orvanta::localizationUtilities
