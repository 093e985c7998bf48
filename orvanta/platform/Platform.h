#pragma once

#include <memory>

#include <orvanta/Export.h>
#include <orvanta/platform/Bundle.h>
#include <orvanta/platform/FileManager.h>
#include <orvanta/platform/FontSystem.h>
#include <orvanta/platform/LocaleData.h>
#include <orvanta/platform/Log.h>
#include <orvanta/platform/MainQueue.h>
#include <orvanta/platform/NotificationCenter.h>
#include <orvanta/platform/ProcessInfo.h>

namespace orvanta::platform {

/// Everything that the library asks of its surroundings, gathered in one place.
///
/// An application installs its own before the first use of the library; where it installs none,
/// the standard platform with its default options is used. To replace single members, let
/// `makeStandardPlatform` fill in the others.
struct ORVANTA_EXPORT Platform {
  std::shared_ptr<FileManager> files;
  std::shared_ptr<LocaleData> locales;
  std::shared_ptr<BundleRegistry> bundles;
  std::shared_ptr<FontSystem> fonts;
  std::shared_ptr<NotificationCenter> notifications;
  std::shared_ptr<MainQueue> mainQueue;
  std::shared_ptr<ProcessInfo> processInfo;
  std::shared_ptr<Log> log;

  /// The installed platform, or the default one, made at the first call. From any thread. Valid
  /// for the life of the process, also after another one was installed.
  [[nodiscard]] static const Platform& current();

  /// Makes `platform` the current one; every member must be present. What the library has made
  /// from an earlier one keeps using that, so install before the first `sharedLocalizer`.
  static void install(Platform platform);
};

}  // namespace orvanta::platform
