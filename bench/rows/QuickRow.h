#pragma once

#include <filesystem>

#include "harness/Bench.h"
#include "rows/LabelLanguages.h"

namespace orvanta::bench {

/// A change of language in a scene of Qt Quick whose texts are bound to the library, and to
/// `qsTrId` with Qt's translations in `folder`. Nothing where Qt Quick is missing. Needs the
/// application object and the platform.
void switchQuickRow(Bench& bench, const std::filesystem::path& folder,
                    const LabelLanguages& languages);

}  // namespace orvanta::bench
