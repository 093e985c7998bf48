#include <cstddef>
#include <limits>

#include <orvanta/strings/reader/SoundTable.h>
#include <orvanta/strings/reader/binary/BinaryTable.h>
#include <orvanta/strings/reader/text/TextTable.h>

namespace orvanta::strings {

std::shared_ptr<const StringTable> readSoundTable(ByteSource& file, std::uint64_t expectedSize) {
  if (expectedSize > std::numeric_limits<std::uint32_t>::max()) {
    return nullptr;
  }
  TextWindow window(file);
  // An XML property list begins with a character that no statement has.
  if (!window.isSound() || looksLikeBinaryTable(window.lines())) {
    return nullptr;
  }
  // The rest of the file may be somewhat less like ASCII than its beginning.
  constexpr double kMargin = 1.05;
  StringTableBuilder table(
      static_cast<std::size_t>(static_cast<double>(expectedSize) * window.growth() * kMargin));
  return readSoundText(window, table) ? table.build() : nullptr;
}

}  // namespace orvanta::strings
