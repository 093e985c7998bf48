#pragma once

#include <memory>

#include <orvanta/strings/probe/FileProbe.h>
#include <orvanta/strings/probe/PrefixSearches.h>

namespace orvanta::strings {

/// A probe for binary property lists. `searches` must outlive it.
///
/// Texts are contiguous there, so a key with the prefix is the text of an object that begins
/// shortly before a place of the prefix. A full read is needed when the pairs before such a key
/// might exceed the memory that the reader allows for the file, because the reader then leaves the
/// key out.
[[nodiscard]] std::unique_ptr<FileProbe> makeBinaryProbe(const PrefixSearches& searches);

}  // namespace orvanta::strings
