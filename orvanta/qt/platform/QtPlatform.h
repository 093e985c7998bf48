#pragma once

#include <orvanta/platform/Platform.h>
#include <orvanta/qt/Export.h>
#include <orvanta/standard/StandardPlatform.h>

namespace orvanta::qt {

/// The standard platform with what Qt knows better: fonts, a main queue on Qt's event loop, numbers
/// as QLocale writes them, the system's version, and the device's languages where the options do
/// not name them. Members that are present in `replacements` are taken instead.
///
/// A `mainBundlePath` that begins with ":/" is a folder in Qt's resources, unless the file manager
/// is replaced: the languages that the program ships are inside it. The library shows the paths of
/// its files with "/" in front: "/:/app/fr.lproj".
///
/// To be called on the thread of the application object, which may be made before or after. Fonts
/// need it.
[[nodiscard]] ORVANTA_QT_EXPORT platform::Platform makeQtPlatform(
    standard::StandardOptions options = {}, platform::Platform replacements = {});

}  // namespace orvanta::qt
