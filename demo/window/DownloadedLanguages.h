#pragma once

#include <QString>

namespace demo {

/// Stores the language tables in a file that a service sent, as JSON, among the downloaded ones.
/// Gives the first language that was stored; null when there was none.
[[nodiscard]] QString storeDownloadedLanguages(const QString& jsonPath);

}  // namespace demo
