#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>

#include <orvanta/strings/ByteSource.h>
#include <orvanta/text/TextHash.h>

namespace orvanta::strings {

/// The longest prefix that all of `keys` share and that can be probed for; empty when it would be
/// too short to be worth it.
[[nodiscard]] std::string_view prefixToProbeFor(std::span<const HashedKey> keys) noexcept;

/// Looks through strings files, one after the other. Keeps the memory that it reads into, because
/// fresh memory costs more than the looking; used from one thread at a time.
class PrefixProbe {
 public:
  PrefixProbe();
  ~PrefixProbe();
  PrefixProbe(const PrefixProbe&) = delete;
  PrefixProbe& operator=(const PrefixProbe&) = delete;

  /// False only when no key of the strings file begins with `prefix`, which `prefixToProbeFor`
  /// gave; then a look-up of any such key in the file's table would find nothing. True is no
  /// promise. Costs a fraction of the time in which the file is read.
  [[nodiscard]] bool mayHoldKeysWithPrefix(ByteSource& file, std::string_view prefix);

 private:
  struct Tools;
  std::unique_ptr<Tools> tools_;  // Made by the first use.
};

}  // namespace orvanta::strings
