#pragma once

#include <string>

#include <orvanta/standard/Environment.h>
#include <orvanta/text/String.h>

namespace orvanta::standard {

/// The absolute path of the running executable; absent where the system does not tell.
[[nodiscard]] String executablePath();

/// `path` made absolute by the working directory; absent when `path` is empty.
[[nodiscard]] String absolutePath(const std::string& path);

/// The folder that the executable called `executable` keeps its caches in: one of its own name in
/// `$XDG_CACHE_HOME` or, where that is not set to an absolute path, in `~/.cache`. Absent when
/// neither is known, or the executable is not.
[[nodiscard]] String cachesPathOf(const String& executable, const Environment& environment);

}  // namespace orvanta::standard
