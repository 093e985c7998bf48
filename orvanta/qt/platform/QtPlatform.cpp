#include <QLocale>
#include <QOperatingSystemVersion>
#include <QSysInfo>
#include <QVersionNumber>
#include <string>
#include <utility>
#include <vector>

#include <orvanta/qt/platform/QtFonts.h>
#include <orvanta/qt/platform/QtLocaleData.h>
#include <orvanta/qt/platform/QtMainQueue.h>
#include <orvanta/qt/platform/QtPlatform.h>
#include <orvanta/qt/platform/QtPlatformCheck.h>
#include <orvanta/qt/platform/ResourceFiles.h>

namespace orvanta::qt {

namespace {

// On systems whose version Qt does not know, as on Linux, the kernel's.
platform::OperatingSystemVersion systemVersion() {
  const QOperatingSystemVersion system = QOperatingSystemVersion::current();
  const QVersionNumber version = system.majorVersion() >= 0
                                     ? system.version()
                                     : QVersionNumber::fromString(QSysInfo::kernelVersion());
  return {version.majorVersion(), version.minorVersion(), version.microVersion()};
}

// Without the locales C and POSIX, which name no language.
std::vector<std::string> deviceLanguages() {
  QStringList languages = QLocale::system().uiLanguages();
  languages.removeAll(QStringLiteral("C"));
  languages.removeAll(QStringLiteral("POSIX"));
  languages.removeDuplicates();
  std::vector<std::string> names;
  for (const QString& language : languages) {
    names.push_back(language.toStdString());
  }
  return names;
}

}  // namespace

platform::Platform makeQtPlatform(standard::StandardOptions options,
                                  platform::Platform replacements) {
  noteQtPlatform();
  if (!options.deviceLanguages) {
    options.deviceLanguages = deviceLanguages();
  }
  if (!options.systemVersion) {
    options.systemVersion = systemVersion();
  }
  if (replacements.fonts == nullptr) {
    replacements.fonts = makeQtFonts();
  }
  if (replacements.mainQueue == nullptr) {
    replacements.mainQueue = makeQtMainQueue();
  }
  if (const std::string path = pathOfResource(options.mainBundlePath);
      path != options.mainBundlePath && replacements.files == nullptr) {
    options.mainBundlePath = path;
    replacements.files =
        makeResourceFiles(standard::makeStandardPlatform(options, replacements).files);
  }
  const bool areLocalesReplaced = replacements.locales != nullptr;
  platform::Platform platform = standard::makeStandardPlatform(options, std::move(replacements));
  if (!areLocalesReplaced) {
    platform.locales = makeQtLocaleData(std::move(platform.locales));
  }
  return platform;
}

}  // namespace orvanta::qt
