#include "Escaping.h"

#include <unistd.h>

#include <orvanta/strings/encoding/ControlCharacters.h>
#include <orvanta/text/HexDigit.h>
#include <orvanta/text/Utf8.h>

namespace ovlocalize {

namespace {

void appendHexadecimal(std::string& out, unsigned value, int digits) {
  for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) {
    out += orvanta::kHexadecimalDigits[(value >> shift) & 0xF];
  }
}

void appendEscaped(std::string& out, std::string_view text, std::string_view special = {}) {
  while (!text.empty()) {
    const auto character = orvanta::utf8::decode(text);
    const std::string_view bytes = text.substr(0, character.length);
    if (!character.valid) {
      for (const char byte : bytes) {
        out += "\\x";
        appendHexadecimal(out, static_cast<unsigned char>(byte), 2);
      }
    } else if (orvanta::strings::isControl(character.codePoint)) {
      orvanta::strings::appendEscapedControl(out, character.codePoint);
    } else {
      if (special.find(bytes) != std::string_view::npos) {
        out += '\\';
      }
      out += bytes;
    }
    text.remove_prefix(character.length);
  }
}

}  // namespace

std::string escaped(std::string_view text) {
  std::string out;
  appendEscaped(out, text);
  return out;
}

std::string quoted(std::string_view text) {
  std::string out = "\"";
  appendEscaped(out, text, "\"\\");
  return out + '"';
}

std::string escapedJson(std::string_view json) {
  std::string out;
  while (!json.empty()) {
    const auto character = orvanta::utf8::decode(json);
    if (character.codePoint >= 0x7F && orvanta::strings::isControl(character.codePoint)) {
      out += "\\u";
      appendHexadecimal(out, static_cast<unsigned>(character.codePoint), 4);
    } else {
      out += json.substr(0, character.length);
    }
    json.remove_prefix(character.length);
  }
  return out;
}

std::string forOutput(const std::string& text) {
  return ::isatty(STDOUT_FILENO) != 0 ? escaped(text) : text;
}

}  // namespace ovlocalize
