#include "data/Escaped.h"

namespace orvanta::bench {

void appendEscaped(std::string& out, std::string_view text) {
  for (const char character : text) {
    if (character == '\n') {
      out += "\\n";
      continue;
    }
    if (character == '"' || character == '\\') {
      out += '\\';
    }
    out += character;
  }
}

}  // namespace orvanta::bench
