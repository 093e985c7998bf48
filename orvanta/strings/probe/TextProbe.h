#pragma once

#include <cstddef>
#include <memory>

#include <orvanta/strings/encoding/TextEncoding.h>
#include <orvanta/strings/probe/FileProbe.h>
#include <orvanta/strings/probe/PrefixSearches.h>

namespace orvanta::strings {

/// For text in UTF-8 or UTF-16 behind a byte-order mark of `markSize` bytes; null for any other
/// encoding. `searches` must outlive it.
///
/// The statements from the beginning of the file on are passed over as long as they are of the
/// usual kind (SoundStatements.h), for which the reader has no other reading. Those with a place
/// that the searches found are given to the reader. So every statement that can have such a key is
/// read, in order, and a later one replaces an earlier one as it does in a full read. Anything else
/// on the way needs a full read, and so does whatever the reader reports about such a statement.
///
/// What stands behind the last such statement is not looked at, except that another sound statement
/// or the end of the file must follow: recovery from damage may change the statement right before
/// the damage, but none before that.
[[nodiscard]] std::unique_ptr<FileProbe> makeTextProbe(TextEncoding encoding, std::size_t markSize,
                                                       const PrefixSearches& searches);

}  // namespace orvanta::strings
