#pragma once

#include <QTranslator>
#include <filesystem>
#include <memory>

#include "data/Corpus.h"

namespace orvanta::bench::qt {

/// Compiles a table to `file` (.qm) with lrelease, its keys as text identifiers.
void makeTranslations(const std::filesystem::path& file, const Table& table);

/// Opens a compiled table. Throws on failure.
[[nodiscard]] std::unique_ptr<QTranslator> open(const std::filesystem::path& file);

/// The text under a key, null when there is none. Text identifiers have no context.
[[nodiscard]] inline QString find(const QTranslator& translator, const char* key) {
  return translator.translate("", key);
}

}  // namespace orvanta::bench::qt
