#pragma once

#include <functional>

#include <orvanta/text/String.h>

namespace orvanta::standard {

/// The value of an environment variable; absent when it is not set.
using Environment = std::function<String(const char* name)>;

/// The environment of this process.
[[nodiscard]] Environment processEnvironment();

}  // namespace orvanta::standard
