// Texts that need no escapes read back equal after writing. The input is keys and values in turn.
#include <map>
#include <string>

#include <orvanta/strings/reader/StringTableReader.h>
#include <orvanta/strings/writer/StringsFile.h>
#include <orvanta/text/StringsPayload.h>
#include <orvanta/text/Utf8.h>

#include "../tests/support/MemoryFile.h"
#include "Target.h"

namespace orvanta::fuzz {

namespace {

// The next text, without the characters that need escapes.
std::string takeText(std::string_view& input) {
  std::string text(takePiece(input));
  std::erase_if(text, [](char c) { return c == '"' || c == '\\'; });
  return text;
}

}  // namespace

void feed(std::string_view input) {
  StringsPayload table = StringsPayload::dictionary();
  std::map<std::string, std::string> pairs;
  bool isValid = true;
  while (!input.empty()) {
    const std::string key = takeText(input);
    const std::string value = takeText(input);
    if (key.empty() || value.empty()) {
      continue;
    }
    table.add(String(key), String(value));
    pairs[key] = value;
    isValid = isValid && utf8::isValid(key) && utf8::isValid(value);
  }
  test::MemoryFile file;
  require(strings::writeStringsFile(table, file).ok() == isValid,
          "valid text is written, other text is not");
  if (!isValid) {
    return;
  }
  const auto read = strings::readStringTable(
      file.bytes, [](const auto& problem) { require(false, problem.message.c_str()); });
  require(read != nullptr && read->size() == pairs.size(), "every pair is there");
  for (const auto& [key, value] : pairs) {
    require(read->textForKey(HashedKey(key)) == std::string_view(value), "the same text");
  }
}

}  // namespace orvanta::fuzz
