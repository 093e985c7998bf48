#pragma once

#include <filesystem>
#include <string_view>
#include <vector>

#include "data/Corpus.h"

namespace orvanta::bench::gettext {

/// Compiles `<folder>/<language>/LC_MESSAGES/<domain>.mo` with msgfmt and its default options,
/// which include the hash table.
void makeCatalog(const std::filesystem::path& folder, std::string_view language,
                 std::string_view domain, const Table& table);

/// Prepares the process for catalogues: sets the locale "C.UTF-8", which every system has, so that
/// the variable LANGUAGE selects the catalogue. (In the locale "C" the C library ignores that
/// variable.)
void chooseLanguages(const char* languages);

/// Tells the C library where a domain's catalogues are, and to return UTF-8.
void bindDomain(const char* domain, const std::filesystem::path& folder);

}  // namespace orvanta::bench::gettext
