#pragma once

#include <cstddef>

#include <orvanta/strings/encoding/TextEncoding.h>

namespace orvanta::strings {

/// A text in the encoding that its XML declaration names.
struct DeclaredText {
  EncodedText text;
  bool isKnown = true;     ///< False for an encoding that cannot be read.
  std::size_t nameAt = 0;  ///< Where the encoding's name stands in the UTF-8 text.
};

/// The encoding of an XML text. A byte-order mark or zero bytes decide, because a declaration may
/// have been copied from another file. Without them the declaration decides:
///
///     <?xml version="1.0" encoding="ISO-8859-1"?>
[[nodiscard]] DeclaredText asDeclared(EncodedText text) noexcept;

}  // namespace orvanta::strings
