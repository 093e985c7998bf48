#pragma once

#include <string>

#include "Catalog.h"

namespace ovlocalize {

/// A PO file: the key as context, an entry without a translation for a text that is not there.
[[nodiscard]] std::string poFrom(const Catalog& catalog);

/// Obsolete entries are passed over. `name` is what messages call the file. Throws `Failure` when
/// the bytes are no PO file in UTF-8.
[[nodiscard]] Catalog catalogFromPo(const std::string& bytes, const std::string& name);

/// An XLIFF 1.2 file: the key as id and name, a unit without a target for a text that is not there.
[[nodiscard]] std::string xliffFrom(const Catalog& catalog);

/// Inline elements of a target count as the text in them. `name` is what messages call the file.
/// Throws `Failure` when the bytes are no XLIFF 1.2 file.
[[nodiscard]] Catalog catalogFromXliff(const std::string& bytes, const std::string& name);

}  // namespace ovlocalize
