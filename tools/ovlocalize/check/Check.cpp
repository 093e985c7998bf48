#include <algorithm>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include "../CommandLine.h"
#include "../Commands.h"
#include "Report.h"
#include "Rules.h"

namespace ovlocalize {

namespace {

struct CheckRequest {
  std::string level = "warning";
  std::vector<std::string> ignored;
  bool showsAll = false;
};

void checkAll(CheckReport& report) {
  const LanguageFile* english = nullptr;
  bool hasLanguages = false;
  for (LanguageFolder& folder : report.folders) {
    // A downloaded English holds for the downloaded languages; else the shipped one does.
    const LanguageFile* const own = folder.find("en");
    english = own != nullptr && own->table != nullptr ? own : english;
    hasLanguages = hasLanguages || !folder.files.empty();
    for (LanguageFile& file : folder.files) {
      checkTexts(file, english);
    }
    checkFolder(folder);
    for (LanguageFile& file : folder.files) {
      file.englishKeys = english == nullptr ? 0 : english->keys;
      std::stable_sort(file.findings.begin(), file.findings.end(),
                       [](const Finding& a, const Finding& b) {
                         return std::tie(a.line, a.column) < std::tie(b.line, b.column);
                       });
    }
  }
  if (!hasLanguages) {
    throw Failure("no languages in the folder " + report.folders.front().path);
  }
  if (english == nullptr) {
    report.general.push_back({&rules::kEnglish, report.folders.front().path, 0, 0, "",
                              "there is no English, with which texts would be compared"});
  }
}

int check(const Settings& settings, const CheckRequest& request) {
  CheckReport report;
  report.isColored = settings.isColored;
  report.folders = readLanguageFolders(settings);
  report.showsWarnings = request.level == "warning";
  report.showsAll = request.showsAll;
  report.ignored = request.ignored;
  checkAll(report);
  settings.json ? printForMachines(report) : printForPeople(report);
  return report.count(true) == 0 ? 0 : 1;
}

std::string helpOnRules() {
  std::string help = "\nRules:\n";
  for (const Rule& rule : rules::kAll) {
    help += "  " + std::string(rule.name) + std::string(16 - rule.name.size(), ' ') +
            (rule.isError ? "error    " : "warning  ") + std::string(rule.meaning) + '\n';
  }
  return help;
}

}  // namespace

void addCheck(CommandLine& commands) {
  const auto request = std::make_shared<CheckRequest>();
  CLI::App& command = commands.add(
      "check",
      "Check the strings files of all languages, and compare them with English. Exit status\n"
      "1 when there is an error",
      "  ovlocalize --bundle demo/bundle check\n"
      "  ovlocalize --bundle demo/bundle check --level error --ignore untranslated\n",
      [request](const Settings& settings) { return check(settings, *request); });
  command.footer(command.get_footer() + helpOnRules());
  std::vector<std::string> names;
  for (const Rule& rule : rules::kAll) {
    names.emplace_back(rule.name);
  }
  command.add_option("--level", request->level, "Show warnings too (the default), or errors only")
      ->check(CLI::IsMember({"error", "warning"}).description(""))
      ->type_name("error|warning");
  command
      .add_option("--ignore", request->ignored,
                  "Leave a rule out, also of counts and exit status. May be given more than once")
      ->allow_extra_args(false)
      ->check(CLI::IsMember(names).description(""))
      ->type_name("RULE");
  command.add_flag("--all", request->showsAll,
                   "Show every finding, not only the first of many of a kind in a file");
}

}  // namespace ovlocalize
