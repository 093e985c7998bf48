#pragma once

#include <memory>

#include <orvanta/strings/probe/FileProbe.h>
#include <orvanta/strings/probe/PrefixSearches.h>

namespace orvanta::strings {

/// For binary property lists. `searches` must outlive it.
///
/// A text stands there in one piece, so a key with the prefix is the text of an object that begins
/// a little before a place where the prefix stands. Pairs that the reader might leave out, because
/// those before them take more than it grants a file of that size, need a full read.
[[nodiscard]] std::unique_ptr<FileProbe> makeBinaryProbe(const PrefixSearches& searches);

}  // namespace orvanta::strings
