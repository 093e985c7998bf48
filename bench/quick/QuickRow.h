#pragma once

#include <filesystem>

#include "harness/Bench.h"
#include "rows/LabelLanguages.h"

namespace orvanta::bench {

/// A change of language in a scene of Qt Quick whose texts are bound to the library, and to
/// `qsTrId` with Qt's translations in `folder`. Needs the application object and the platform.
///
/// In a module of its own, which is loaded behind the rows of widgets: where Qt Quick is loaded
/// every `QLabel::setText` takes longer, because Qt Quick serves accessibility, too.
extern "C" void orvantaBenchQuickRow(Bench& bench, const std::filesystem::path& folder,
                                     const LabelLanguages& languages);

}  // namespace orvanta::bench
