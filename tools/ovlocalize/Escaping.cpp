#include "Escaping.h"

#include <unistd.h>

#include <orvanta/text/Utf8.h>

namespace ovlocalize {

namespace {

void appendHexadecimal(std::string& out, unsigned value, int digits) {
  for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) {
    out += "0123456789ABCDEF"[(value >> shift) & 0xF];
  }
}

// C0, DEL and C1.
bool isControl(char32_t character) {
  return character < 0x20 || (character >= 0x7F && character < 0xA0);
}

void appendControl(std::string& out, char32_t character) {
  switch (character) {
    case '\n':
      out += "\\n";
      break;
    case '\r':
      out += "\\r";
      break;
    case '\t':
      out += "\\t";
      break;
    default:
      out += "\\U";
      appendHexadecimal(out, static_cast<unsigned>(character), 4);
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
    } else if (isControl(character.codePoint)) {
      appendControl(out, character.codePoint);
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
    if (character.codePoint >= 0x7F && isControl(character.codePoint)) {
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
