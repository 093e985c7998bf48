#pragma once

#include <memory>
#include <string>
#include <string_view>

#include <orvanta/platform/FileManager.h>

namespace orvanta::qt {

/// The path under which the library sees an item of Qt's resources: "/:/app" for ":/app". Other
/// paths stay as they are.
[[nodiscard]] std::string pathOfResource(std::string_view qtPath);

/// Adds Qt's resources to the files of `others`, in the folder "/:", for reading: whatever would
/// change them fails, as on a disk without permission to write. Resources may be registered and
/// unregistered while it exists.
[[nodiscard]] std::shared_ptr<platform::FileManager> makeResourceFiles(
    std::shared_ptr<platform::FileManager> others);

}  // namespace orvanta::qt
