#include <algorithm>

#include <orvanta/strings/document/Comments.h>
#include <orvanta/strings/document/NewStatements.h>
#include <orvanta/strings/encoding/ControlCharacters.h>
#include <orvanta/strings/reader/text/TextCharacters.h>
#include <orvanta/text/Utf8.h>

namespace orvanta::strings {

namespace {

std::string_view xmlEntity(char c) noexcept {
  return c == '&' ? "&amp;" : c == '<' ? "&lt;" : "&gt;";
}

// A key that would be read as a comment is not plain.
bool isPlain(std::string_view key) noexcept {
  return !key.empty() &&
         std::all_of(key.begin(), key.end(), [](char c) { return isKind(c, kPlain) && c != '/'; });
}

std::string withLineEnds(std::string_view comment, std::string_view lineEnd) {
  std::string lines;
  for (const char c : comment) {
    lines += c == '\n' ? lineEnd : std::string_view(&c, 1);
  }
  return lines;
}

std::string asToken(std::string_view text) {
  return '"' + asQuoted(text, '"') + '"';
}

}  // namespace

std::string asQuoted(std::string_view text, char quote) {
  std::string quoted;
  while (!text.empty()) {
    const utf8::Decoded next = utf8::decode(text);
    if (isControl(next.codePoint)) {
      appendEscapedControl(quoted, next.codePoint);
    } else {
      const bool isMark = text[0] == '\\' || text[0] == quote;
      quoted.append(isMark ? "\\" : "").append(text.substr(0, next.length));
    }
    text.remove_prefix(next.length);
  }
  return quoted;
}

std::string asXmlData(std::string_view text) {
  std::string data;
  for (const char c : text) {
    const auto code = static_cast<unsigned char>(c);
    if (c == '&' || c == '<' || c == '>') {
      data += xmlEntity(c);
    } else if (code < 0x20 && c != '\t' && c != '\n') {
      data += "&#" + std::to_string(code) + ';';
    } else {
      data += c;
    }
  }
  return data;
}

std::string newStatement(const StatementStyle& style, std::string_view key, std::string_view value,
                         std::string_view comment) {
  const std::string begin = std::string(style.lineEnd) + style.indentation;
  const std::string ownComment = withLineEnds(comment, style.lineEnd);
  std::string lines = style.indentation;
  if (style.isXml) {
    lines += comment.empty() ? "" : asXmlComment(ownComment) + begin;
    lines +=
        "<key>" + asXmlData(key) + "</key>" + begin + "<string>" + asXmlData(value) + "</string>";
  } else {
    // A blank line separates it from what stands before.
    lines = comment.empty() ? lines : begin + asComment(ownComment) + begin;
    lines += (style.hasPlainKeys && isPlain(key) ? std::string(key) : asToken(key)) + " = " +
             asToken(value) + ';';
  }
  return lines.append(style.lineEnd);
}

}  // namespace orvanta::strings
