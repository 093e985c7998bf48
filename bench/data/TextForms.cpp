#include "data/Escaped.h"
#include "data/TableForms.h"
#include "data/Utf16.h"

namespace orvanta::bench {

namespace {

void appendField(std::string& out, std::string_view text) {
  for (const char character : text) {
    switch (character) {
      case '\n':
        out += "\\n";
        break;
      case '\t':
        out += "\\t";
        break;
      case '\\':
        out += "\\\\";
        break;
      default:
        out += character;
    }
  }
}

}  // namespace

std::string textFormUtf8(const Table& table) {
  std::string text;
  for (const Entry& entry : table) {
    text += "/* */\n\"";
    appendEscaped(text, entry.key);
    text += "\" = \"";
    appendEscaped(text, entry.value);
    text += "\";\n\n";
  }
  return text;
}

std::string textFormUtf16(const Table& table) {
  std::string bytes = "\xFF\xFE";
  for (const char16_t unit : utf16(textFormUtf8(table))) {
    bytes += static_cast<char>(unit & 0xFF);
    bytes += static_cast<char>(unit >> 8);
  }
  return bytes;
}

std::string tabSeparated(const Table& table) {
  std::string text;
  for (const Entry& entry : table) {
    appendField(text, entry.key);
    text += '\t';
    appendField(text, entry.value);
    text += '\n';
  }
  return text;
}

}  // namespace orvanta::bench
