#pragma once

#include <filesystem>
#include <string_view>
#include <vector>

#include "data/Corpus.h"

namespace orvanta::bench::gettext {

/// Compiles `<folder>/<language>/LC_MESSAGES/<domain>.mo` with msgfmt, hash table included, as it
/// does by default.
void makeCatalog(const std::filesystem::path& folder, std::string_view language,
                 std::string_view domain, const Table& table);

/// Sets the process up for catalogues: the locale "C.UTF-8", which every system has, and the
/// variable LANGUAGE, which then decides. (In "C" itself the C library ignores that variable.)
void chooseLanguages(const char* languages);

/// Tells the C library where a domain's catalogues are and that answers are to be UTF-8.
void bindDomain(const char* domain, const std::filesystem::path& folder);

}  // namespace orvanta::bench::gettext
