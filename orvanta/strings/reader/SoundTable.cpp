#include <algorithm>
#include <cstddef>
#include <limits>

#include <orvanta/strings/reader/SoundTable.h>
#include <orvanta/strings/reader/binary/BinaryTable.h>
#include <orvanta/strings/reader/text/TextTable.h>

namespace orvanta::strings {

namespace {

// Estimated from the lines that the file begins with.
StringTableBuilder::Expected expectedIn(const TextWindow& window, std::uint64_t fileSize) {
  // The rest may have shorter entries, or be somewhat less like ASCII.
  constexpr double kMargin = 1.05;
  const std::string_view lines = window.lines();
  const double bytes = static_cast<double>(fileSize) * window.growth() * kMargin;
  const auto statements = static_cast<double>(std::count(lines.begin(), lines.end(), ';'));
  const double entries = lines.empty() ? 0 : statements / static_cast<double>(lines.size()) * bytes;
  return {static_cast<std::size_t>(entries), static_cast<std::size_t>(bytes)};
}

}  // namespace

std::shared_ptr<const StringTable> readSoundTable(ByteSource& file, std::uint64_t expectedSize) {
  if (expectedSize > std::numeric_limits<std::uint32_t>::max()) {
    return nullptr;
  }
  TextWindow window(file);
  // An XML property list begins with a character that no statement has.
  if (!window.isSound() || looksLikeBinaryTable(window.lines())) {
    return nullptr;
  }
  StringTableBuilder table(expectedIn(window, expectedSize));
  return readSoundText(window, table) ? table.build() : nullptr;
}

}  // namespace orvanta::strings
