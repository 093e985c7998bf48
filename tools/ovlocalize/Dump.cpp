#include <iostream>
#include <memory>
#include <sstream>
#include <vector>

#include <orvanta/strings/reader/StringTableReader.h>

#include "CommandLine.h"
#include "Commands.h"
#include "Escaping.h"
#include "FileContents.h"
#include "Json.h"
#include "Tables.h"

namespace ovlocalize {

namespace {

using orvanta::strings::StringTable;
using orvanta::strings::TableProblem;

/// A table to print: a file, or the table of a language in the catalogue. One of the two is empty.
struct Source {
  std::string file;
  std::string language;
};

// The problems of a table as they are reported, of which only the first are kept.
class Problems {
 public:
  void add(const TableProblem& problem) {
    ++count_;
    if (first_.size() < kShown) {
      first_.push_back(problem);
    }
  }

  void print(const std::string& file) const {
    std::ostringstream lines;
    for (const TableProblem& problem : first_) {
      lines << escaped(file) << ':' << problem.line << ':' << problem.column << ": "
            << escaped(problem.message) << '\n';
    }
    if (count_ > first_.size()) {
      lines << escaped(file) << ": " << count_ - first_.size() << " further problems\n";
    }
    std::cerr << lines.str();
  }

 private:
  static constexpr std::size_t kShown = 1000;

  std::vector<TableProblem> first_;
  std::size_t count_ = 0;
};

void printJson(const StringTable& table) {
  Json object = Json::object();
  // Not through the object's operator[], which looks for the key among all that came before.
  auto& entries = object.get_ref<Json::object_t&>();
  for (const auto& [key, value] : table.entries()) {
    entries.Container::emplace_back(std::string(key), std::string(value));
  }
  std::cout << printed(object) << '\n';
}

void printLines(const StringTable& table) {
  for (const auto& [key, value] : table.entries()) {
    std::cout << quoted(key) << " = " << quoted(value) << '\n';
  }
}

int dump(const Settings& settings, const Source& source) {
  const std::string file =
      source.language.empty() ? source.file : tableFileOf(settings, source.language);
  Problems problems;
  const auto table = orvanta::strings::readStringTable(
      contentsOf(file), [&](const TableProblem& problem) { problems.add(problem); });
  if (table == nullptr) {
    throw Failure(nameOf(file) + " is not a strings file");
  }
  problems.print(nameOf(file));
  settings.json ? printJson(*table) : printLines(*table);
  return 0;
}

}  // namespace

void addDump(CommandLine& commands) {
  const auto source = std::make_shared<Source>();
  CLI::App& command =
      commands.add("dump",
                   "Print the entries of a strings file in any of its forms; problems in it\n"
                   "go to standard error as FILE:LINE:COLUMN: message",
                   "  ovlocalize dump fr.lproj/Localizable.strings\n"
                   "  ovlocalize --bundle demo/bundle --json dump --language fr",
                   [source](const Settings& settings) { return dump(settings, *source); });
  CLI::Option* file =
      command.add_option("file", source->file, "The strings file, or - for standard input")
          ->check(refuseEmpty)
          ->type_name("FILE");
  CLI::Option* language = command
                              .add_option("--language", source->language,
                                          "Instead of a file: the table of this language")
                              ->check(refuseEmpty)
                              ->type_name("ID")
                              ->excludes(file);
  command.parse_complete_callback([file, language] {
    if (file->count() + language->count() == 0) {
      throw CLI::ValidationError("dump", "a FILE or --language ID is required");
    }
  });
}

}  // namespace ovlocalize
