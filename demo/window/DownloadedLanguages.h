#pragma once

#include <QString>

namespace demo {

/// Stores the language tables in a file that a service sent, as JSON, among the downloaded ones.
/// False when there was none to store.
[[nodiscard]] bool storeDownloadedLanguages(const QString& jsonPath);

}  // namespace demo
