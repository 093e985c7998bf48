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

/// The interfaces through which the library reaches the system.
///
/// An application may install its own before the first use of the library; else the standard
/// platform with its default options is used. To replace single members, let
/// `makeStandardPlatform` fill in the others. No member is null in an installed platform.
struct ORVANTA_EXPORT Platform {
  /// The disk.
  std::shared_ptr<FileManager> files;
  /// What is known about languages, and the device's own ones.
  std::shared_ptr<LocaleData> locales;
  /// The folders of resources.
  std::shared_ptr<BundleRegistry> bundles;
  /// The fonts.
  std::shared_ptr<FontSystem> fonts;
  /// Who is told of what.
  std::shared_ptr<NotificationCenter> notifications;
  /// The steps of the main thread.
  std::shared_ptr<MainQueue> mainQueue;
  /// The version of the system.
  std::shared_ptr<ProcessInfo> processInfo;
  /// Where messages go.
  std::shared_ptr<Log> log;

  /// The installed platform, else the default one, made at the first call. Thread-safe. Valid for
  /// the life of the process, even after another one is installed.
  [[nodiscard]] static const Platform& current();

  /// Makes `platform` the current one. Objects made before keep the earlier one, so install before
  /// the first `sharedLocalizer`.
  static void install(Platform platform);
};

}  // namespace orvanta::platform
