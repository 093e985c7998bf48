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
  StringTableBuilder table(
      expectedUtf8Size(window.encoding(), static_cast<std::size_t>(expectedSize)));
  return readSoundText(window, table) ? table.build() : nullptr;
}

}  // namespace orvanta::strings
