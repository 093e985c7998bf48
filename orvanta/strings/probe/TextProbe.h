#pragma once

#include <cstddef>
#include <memory>

#include <orvanta/strings/encoding/TextEncoding.h>
#include <orvanta/strings/probe/FileProbe.h>
#include <orvanta/strings/probe/PrefixSearches.h>

namespace orvanta::strings {

/// A probe for text in UTF-8 or UTF-16 with a byte-order mark of `markSize` bytes; null for any
/// other encoding. `searches` must outlive it.
///
/// From the beginning of the file, statements are skipped as long as they are of the usual kind
/// (SoundStatements.h), which the reader splits in the same way. Those that contain a place found
/// by the searches are given to the reader. So every statement that can have such a key is read, in
/// order, and a later one replaces an earlier one as in a full read. A full read is needed when
/// anything else stands between them, or when the reader reports a problem with one of them.
///
/// The text behind the last such statement is not read. Only the next statement must be sound, or
/// the file must end: recovery may change the statement right before the damage, but no earlier
/// one.
[[nodiscard]] std::unique_ptr<FileProbe> makeTextProbe(TextEncoding encoding, std::size_t markSize,
                                                       const PrefixSearches& searches);

}  // namespace orvanta::strings
