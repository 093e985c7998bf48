#include "Report.h"

#include <algorithm>
#include <iostream>
#include <map>
#include <optional>

#include "../Color.h"
#include "../Escaping.h"
#include "../Json.h"
#include "../TextTable.h"

namespace ovlocalize {

namespace {

constexpr std::size_t kShownOfAKind = 5;

std::string_view levelOf(const Finding& finding) {
  return finding.rule->isError ? "error" : "warning";
}

// FILE:LINE:COLUMN: error: "key": message [rule]
void printLine(const CheckReport& report, const Finding& finding) {
  std::cout << escaped(finding.file);
  if (finding.line > 0) {
    std::cout << ':' << finding.line << ':' << finding.column;
  }
  const Tone tone = finding.rule->isError ? Tone::kError : Tone::kWarning;
  std::cout << ": " << painted(report.isColored, tone, levelOf(finding)) << ": ";
  if (!finding.key.empty()) {
    std::cout << quoted(finding.key) << ": ";
  }
  std::cout << escaped(finding.message) << " [" << finding.rule->name << "]\n";
}

void printFindings(const CheckReport& report, const std::vector<Finding>& findings) {
  std::map<const Rule*, std::size_t> counts;
  for (const Finding& finding : findings) {
    if (report.shows(finding) && (++counts[finding.rule] <= kShownOfAKind || report.showsAll)) {
      printLine(report, finding);
    }
  }
  for (const Rule& rule : rules::kAll) {
    const std::size_t count = counts[&rule];
    if (count > kShownOfAKind && !report.showsAll) {
      std::cout << escaped(findings.front().file) << ": " << count - kShownOfAKind << " more ["
                << rule.name << "], which --all shows\n";
    }
  }
}

std::size_t countIn(const CheckReport& report, const std::vector<Finding>& findings, bool isError) {
  return static_cast<std::size_t>(
      std::count_if(findings.begin(), findings.end(), [&](const Finding& finding) {
        return finding.rule->isError == isError &&
               std::find(report.ignored.begin(), report.ignored.end(), finding.rule->name) ==
                   report.ignored.end();
      }));
}

// Rounded down: 100 only where nothing is missing. Absent without English.
std::optional<std::size_t> percentOf(const LanguageFile& file) {
  return file.englishKeys == 0 ? std::nullopt
                               : std::optional(file.translated * 100 / file.englishKeys);
}

void printTable(const CheckReport& report) {
  using Align = TextTable::Align;
  TextTable table({{"LANGUAGE"},
                   {"FROM"},
                   {"KEYS", Align::kRight},
                   {"COVERAGE", Align::kRight},
                   {"ERRORS", Align::kRight},
                   {"WARNINGS", Align::kRight}});
  for (const LanguageFolder& folder : report.folders) {
    for (const LanguageFile& file : folder.files) {
      const auto percent = percentOf(file);
      table.add({escaped(file.language), file.isDownloaded ? "cache" : "bundle",
                 std::to_string(file.keys), percent ? std::to_string(*percent) + " %" : "-",
                 std::to_string(countIn(report, file.findings, true)),
                 std::to_string(countIn(report, file.findings, false))});
    }
  }
  table.print(report.isColored);
}

Json toJson(const Finding& finding) {
  Json object = {{"level", levelOf(finding)},
                 {"rule", finding.rule->name},
                 {"file", finding.file},
                 {"line", finding.line},
                 {"column", finding.column}};
  object["key"] = finding.key.empty() ? Json(nullptr) : Json(finding.key);
  object["message"] = finding.message;
  return object;
}

void addFindings(const CheckReport& report, const std::vector<Finding>& findings, Json& array) {
  for (const Finding& finding : findings) {
    if (report.shows(finding)) {
      array.push_back(toJson(finding));
    }
  }
}

}  // namespace

bool CheckReport::shows(const Finding& finding) const {
  return (showsWarnings || finding.rule->isError) &&
         std::find(ignored.begin(), ignored.end(), finding.rule->name) == ignored.end();
}

std::size_t CheckReport::count(bool isError) const {
  std::size_t count = countIn(*this, general, isError);
  for (const LanguageFolder& folder : folders) {
    for (const LanguageFile& file : folder.files) {
      count += countIn(*this, file.findings, isError);
    }
  }
  return count;
}

void printForPeople(const CheckReport& report) {
  printFindings(report, report.general);
  std::size_t languages = 0;
  for (const LanguageFolder& folder : report.folders) {
    languages += folder.files.size();
    for (const LanguageFile& file : folder.files) {
      printFindings(report, file.findings);
      if (!file.isComplete) {
        std::cout << escaped(file.file) << ": too many findings, the others are left out\n";
      }
    }
  }
  printTable(report);
  std::cout << languages << " languages: " << report.count(true) << " errors, "
            << report.count(false) << " warnings\n";
}

void printForMachines(const CheckReport& report) {
  Json findings = Json::array();
  addFindings(report, report.general, findings);
  Json languages = Json::array();
  for (const LanguageFolder& folder : report.folders) {
    for (const LanguageFile& file : folder.files) {
      addFindings(report, file.findings, findings);
      const auto percent = percentOf(file);
      languages.push_back({{"language", file.language},
                           {"source", file.isDownloaded ? "downloaded" : "shipped"},
                           {"file", file.file},
                           {"keys", file.keys},
                           {"translated", file.translated},
                           {"coverage", percent ? Json(*percent) : Json(nullptr)},
                           {"errors", countIn(report, file.findings, true)},
                           {"warnings", countIn(report, file.findings, false)},
                           {"isComplete", file.isComplete}});
    }
  }
  std::cout << printed({{"errors", report.count(true)},
                        {"warnings", report.count(false)},
                        {"languages", std::move(languages)},
                        {"findings", std::move(findings)}})
            << '\n';
}

}  // namespace ovlocalize
