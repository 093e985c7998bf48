#pragma once

#include <span>
#include <string>
#include <string_view>

#include <orvanta/platform/FileManager.h>
#include <orvanta/platform/TextHash.h>

namespace orvanta::platform::standard {

/// The longest prefix that all of `keys` share and that can be probed for; empty when it would be
/// too short to be worth it.
[[nodiscard]] std::string_view prefixToProbeFor(std::span<const HashedKey> keys) noexcept;

/// False only when no key of the strings file begins with `prefix`, which `prefixToProbeFor` gave;
/// then a look-up of any such key in the file's table would find nothing. True is no promise.
///
/// Costs a fraction of the time in which the file is read, and no memory to speak of.
[[nodiscard]] bool mayHoldKeysWithPrefix(ReadableFile& file, std::string_view prefix);

}  // namespace orvanta::platform::standard
