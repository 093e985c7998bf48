#pragma once

#include "data/Corpus.h"

namespace orvanta::bench {

/// The three configuration entries of a language, as the services that sort keys put them first.
[[nodiscard]] Table makeConfiguration(const Language& language);

}  // namespace orvanta::bench
