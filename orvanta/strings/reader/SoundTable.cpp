#include <algorithm>
#include <cstddef>

#include <orvanta/strings/ReadFully.h>
#include <orvanta/strings/reader/SoundTable.h>
#include <orvanta/strings/reader/binary/BinaryTable.h>
#include <orvanta/strings/reader/text/TextTable.h>

namespace orvanta::strings {

namespace {

// Estimated from the lines that the file begins with.
StringTableBuilder::Expected expectedIn(const TextWindow& window, double fileSize) {
  // The rest may have shorter entries, or be somewhat less like ASCII.
  constexpr double kMargin = 1.05;
  // The first lines may be full of semicolons.
  constexpr double kShortEntry = 16;
  constexpr std::size_t kSample = 4096;
  constexpr auto kMost = static_cast<double>(kTooLargeFile);
  const std::string_view lines = window.lines().substr(0, kSample);
  const double bytes = window.atEnd() ? static_cast<double>(window.lines().size())
                                      : std::min(fileSize * window.growth() * kMargin, kMost);
  const auto statements = static_cast<double>(std::count(lines.begin(), lines.end(), ';'));
  const double each = std::max(static_cast<double>(lines.size()) / (statements + 1), kShortEntry);
  return {static_cast<std::size_t>(bytes / each), static_cast<std::size_t>(bytes)};
}

}  // namespace

std::shared_ptr<const StringTable> readSoundTable(ByteSource& file, std::uint64_t expectedSize) {
  if (expectedSize >= kTooLargeFile) {
    return nullptr;
  }
  TextWindow window(file);
  const std::string_view lines = window.lines();
  // A first line that is too long has not been looked at. An XML property list begins with a
  // character that no statement has.
  const bool isKnown = window.atEnd() || !lines.empty();
  if (!window.isSound() || !isKnown || looksLikeBinaryTable(lines)) {
    return nullptr;
  }
  StringTableBuilder table(expectedIn(window, static_cast<double>(expectedSize)));
  return readSoundText(window, table) ? table.build() : nullptr;
}

}  // namespace orvanta::strings
