#pragma once

#include <string>
#include <string_view>

#include <orvanta/strings/encoding/TextEncoding.h>

namespace orvanta::strings {

/// Appends valid UTF-8 to bytes of another encoding. In the encodings that only an XML document
/// declares, characters beyond ASCII are written as numeric references.
void appendEncoded(std::string& bytes, std::string_view utf8, TextEncoding encoding);

}  // namespace orvanta::strings
