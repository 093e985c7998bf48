#pragma once

#include <cstddef>
#include <memory>

#include <orvanta/strings/probe/FileProbe.h>
#include <orvanta/strings/probe/PrefixSearches.h>

namespace orvanta::strings {

/// A probe for XML in UTF-8, and for text that begins with "<". It only finds out whether there may
/// be such entries; a full read is needed if there may. `searches` must outlive it.
[[nodiscard]] std::unique_ptr<FileProbe> makeXmlProbe(const PrefixSearches& searches);

}  // namespace orvanta::strings
