#include "contenders/Icu.h"

#include <stdexcept>

#include <unicode/unistr.h>

#include "data/Escaped.h"
#include "harness/Files.h"

namespace orvanta::bench::icu {

namespace {

void appendQuoted(std::string& out, std::string_view text) {
  out += '"';
  appendEscaped(out, text);
  out += '"';
}

}  // namespace

void makeBundle(const std::filesystem::path& folder, std::string_view locale, const Table& table) {
  std::string source(locale);
  source += " {\n";
  for (const Entry& entry : table) {
    appendQuoted(source, entry.key);
    source += " { ";
    appendQuoted(source, entry.value);
    source += " }\n";
  }
  source += "}\n";
  const auto file = folder / (std::string(locale) + ".txt");
  writeFile(file, source);
  runTool({ORVANTA_BENCH_GENRB, "-q", "-e", "UTF-8", "-s", folder.string(), "-d", folder.string(),
           file.filename().string()});
}

Bundle open(const std::filesystem::path& folder, const char* locale) {
  UErrorCode status = U_ZERO_ERROR;
  Bundle bundle(ures_open(folder.c_str(), locale, &status));
  // A warning counts as a failure, too: it means that another locale's bundle was opened.
  if (status != U_ZERO_ERROR) {
    throw std::runtime_error("ICU opens no bundle in " + folder.string());
  }
  return bundle;
}

std::string utf8(std::u16string_view text) {
  std::string bytes;
  ::icu::UnicodeString(text.data(), static_cast<std::int32_t>(text.size())).toUTF8String(bytes);
  return bytes;
}

}  // namespace orvanta::bench::icu
