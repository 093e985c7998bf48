#pragma once

#include <cstddef>
#include <memory>

#include <orvanta/strings/probe/FileProbe.h>
#include <orvanta/strings/probe/PrefixSearches.h>

namespace orvanta::strings {

/// For XML in UTF-8, and for text that begins with "<". Finds out whether there are such entries at
/// all; if there may be, only a full read can tell which. `searches` must outlive it.
[[nodiscard]] std::unique_ptr<FileProbe> makeXmlProbe(const PrefixSearches& searches);

}  // namespace orvanta::strings
