#pragma once

#include <memory>

#include <orvanta/platform/Bundle.h>
#include <orvanta/platform/FileManager.h>
#include <orvanta/platform/LocaleData.h>

namespace orvanta::standard {

/// Bundles in the folders that `files` shows. The main bundle is the folder `mainBundlePath`, an
/// absolute path, and looks a resource up in itself, then in the folder of its first preferred
/// localization; any other bundle looks in itself alone. The library's own resources are in the
/// folder `libraryPath`, absent for none.
///
/// The registry, like its bundles, is used from one thread at a time.
[[nodiscard]] std::shared_ptr<platform::BundleRegistry> makeBundleRegistry(
    std::shared_ptr<platform::FileManager> files, std::shared_ptr<platform::LocaleData> locales,
    const String& mainBundlePath, String libraryPath);

}  // namespace orvanta::standard
