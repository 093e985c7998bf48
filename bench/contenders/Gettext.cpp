#include "contenders/Gettext.h"

#include <clocale>
#include <cstdlib>
#include <stdexcept>
#include <string>

#include <libintl.h>

#include "data/Escaped.h"
#include "harness/Files.h"

namespace orvanta::bench::gettext {

namespace {

void appendQuoted(std::string& out, std::string_view text) {
  out += '"';
  appendEscaped(out, text);
  out += "\"\n";
}

}  // namespace

void makeCatalog(const std::filesystem::path& folder, std::string_view language,
                 std::string_view domain, const Table& table) {
  std::string source = "msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=UTF-8\\n\"\n";
  for (const Entry& entry : table) {
    source += "\nmsgid ";
    appendQuoted(source, entry.key);
    source += "msgstr ";
    appendQuoted(source, entry.value);
  }
  const auto stem = folder / language / "LC_MESSAGES" / domain;
  const std::string catalog = stem.string() + ".mo";
  writeFile(stem.string() + ".po", source);
  runTool({ORVANTA_BENCH_MSGFMT, "-o", catalog, stem.string() + ".po"});
}

void chooseLanguages(const char* languages) {
  if (std::setlocale(LC_ALL, "C.UTF-8") == nullptr) {
    throw std::runtime_error("the locale C.UTF-8 is missing");
  }
  setenv("LANGUAGE", languages, 1);
}

void bindDomain(const char* domain, const std::filesystem::path& folder) {
  bindtextdomain(domain, folder.c_str());
  bind_textdomain_codeset(domain, "UTF-8");
}

}  // namespace orvanta::bench::gettext
