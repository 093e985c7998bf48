#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include <orvanta/fonts/ResourceFace.h>
#include <orvanta/platform/Platform.h>

namespace orvanta::localizationUtilities {

namespace {

constexpr double kSizeAtCreation = 17.0;

// Nothing when the file is missing or reading fails half-way.
std::vector<char> contentsOfFile(const String& path) {
  std::vector<char> contents;
  const std::unique_ptr<platform::ReadableFile> file =
      platform::Platform::current().files->openFileForReading(path);
  std::array<char, 64UL * 1024> buffer;
  std::optional<std::size_t> count = file == nullptr ? 0 : file->read(buffer);
  while (count && *count > 0) {
    contents.insert(contents.end(), buffer.data(), buffer.data() + *count);
    count = file->read(buffer);
  }
  return count ? contents : std::vector<char>();
}

}  // namespace

void ovLoadFontNamed(const String& name) {
  const platform::Platform& platform = platform::Platform::current();
  const std::shared_ptr<platform::Bundle> library = platform.bundles->bundleForLibrary();
  if (library == nullptr) {
    return;
  }
  const std::vector<char> data = contentsOfFile(library->pathForResource(name, "ttf"_s));
  platform.fonts->registerFontData(std::as_bytes(std::span(data)));
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
