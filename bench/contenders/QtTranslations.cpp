#include "contenders/QtTranslations.h"

#include <stdexcept>
#include <string>
#include <string_view>

#include "harness/Files.h"

namespace orvanta::bench::qt {

namespace {

void appendMarkup(std::string& out, std::string_view text) {
  for (const char character : text) {
    switch (character) {
      case '&':
        out += "&amp;";
        break;
      case '<':
        out += "&lt;";
        break;
      case '>':
        out += "&gt;";
        break;
      default:
        out += character;
    }
  }
}

}  // namespace

void makeTranslations(const std::filesystem::path& file, const Table& table) {
  std::string source =
      "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<!DOCTYPE TS>\n"
      "<TS version=\"2.1\" language=\"en\">\n<context><name></name>\n";
  for (const Entry& entry : table) {
    source += "<message id=\"" + entry.key + "\"><source>" + entry.key + "</source><translation>";
    appendMarkup(source, entry.value);
    source += "</translation></message>\n";
  }
  source += "</context>\n</TS>\n";
  const std::string sourceFile = file.string() + ".ts";
  writeFile(sourceFile, source);
  runTool({ORVANTA_BENCH_LRELEASE, "-silent", "-idbased", sourceFile, "-qm", file.string()});
}

std::unique_ptr<QTranslator> open(const std::filesystem::path& file) {
  auto translator = std::make_unique<QTranslator>();
  if (!translator->load(QString::fromStdString(file.string()))) {
    throw std::runtime_error("Qt opens no translations in " + file.string());
  }
  return translator;
}

}  // namespace orvanta::bench::qt
