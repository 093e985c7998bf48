// Texts that need no escapes read back equal after writing. The input is keys and values in turn,
// each terminated by a byte that is invalid in UTF-8.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <map>
#include <string>
#include <string_view>

#include <orvanta/strings/reader/StringTableReader.h>
#include <orvanta/strings/writer/StringsFile.h>
#include <orvanta/text/StringsPayload.h>
#include <orvanta/text/Utf8.h>

#include "../tests/support/MemoryFile.h"

namespace {

using orvanta::StringsPayload;

void expect(bool holds, std::string_view what) {
  if (!holds) {
    std::cerr << "broken promise: " << what << '\n';
    std::abort();
  }
}

// The next text, without the characters that need escapes.
std::string takeText(std::string_view& input) {
  constexpr char kEnd = '\xFF';
  const std::size_t size = std::min(input.find(kEnd), input.size());
  std::string text(input.substr(0, size));
  std::erase_if(text, [](char c) { return c == '"' || c == '\\'; });
  input.remove_prefix(std::min(size + 1, input.size()));
  return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view input(reinterpret_cast<const char*>(data), size);
  StringsPayload table = StringsPayload::dictionary();
  std::map<std::string, std::string> pairs;
  bool isValid = true;
  while (!input.empty()) {
    const std::string key = takeText(input);
    const std::string value = takeText(input);
    if (key.empty() || value.empty()) {
      continue;
    }
    table.add(orvanta::String(key), orvanta::String(value));
    pairs[key] = value;
    isValid = isValid && orvanta::utf8::isValid(key) && orvanta::utf8::isValid(value);
  }
  orvanta::test::MemoryFile file;
  expect(orvanta::strings::writeStringsFile(table, file).ok() == isValid,
         "valid text is written, other text is not");
  if (!isValid) {
    return 0;
  }
  const auto read = orvanta::strings::readStringTable(
      file.bytes, [](const auto& problem) { expect(false, problem.message); });
  expect(read != nullptr && read->size() == pairs.size(), "every pair is there");
  for (const auto& [key, value] : pairs) {
    expect(read->textForKey(orvanta::HashedKey(key)) == std::string_view(value), "the same text");
  }
  return 0;
}
