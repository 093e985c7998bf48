#pragma once

#include <memory>

#include <orvanta/platform/FileManager.h>

namespace orvanta::standard {

/// The system's files. `cachesPath` is the absolute path of the application's caches folder; absent
/// when the application has none.
[[nodiscard]] std::shared_ptr<platform::FileManager> makeFileManager(String cachesPath);

}  // namespace orvanta::standard
