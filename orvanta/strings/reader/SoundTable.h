#pragma once

#include <cstdint>
#include <memory>

#include <orvanta/strings/ByteSource.h>
#include <orvanta/strings/StringTable.h>

namespace orvanta::strings {

/// The table of a file in text form that is sound from its beginning to its end, as nearly all
/// are: the one that `readStringTable` gives for its bytes, in less time and without a buffer for
/// the whole file. Null for every other file, and when reading fails. Null, too, for some that are
/// sound: in UTF-32, with a statement, a comment or a first line that is too long for the window,
/// or of 4 GiB. `expectedSize` is a hint. Throws `std::bad_alloc`.
[[nodiscard]] std::shared_ptr<const StringTable> readSoundTable(ByteSource& file,
                                                                std::uint64_t expectedSize);

}  // namespace orvanta::strings
