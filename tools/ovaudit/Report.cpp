#include "Report.h"

#include <iostream>

#include <ovlocalize/Escaping.h>
#include <ovlocalize/Json.h>
#include <ovlocalize/TextTable.h>

namespace ovaudit {

void printForPeople(const Report& report) {
  if (!report.findings.isEmpty()) {
    ovlocalize::TextTable table({{"LANGUAGE"}, {"RULE"}, {"WIDGET"}, {"FINDING"}});
    for (const Finding& finding : report.findings) {
      table.add({ovlocalize::escaped(finding.language.toStdString()), finding.rule.toStdString(),
                 ovlocalize::escaped(finding.widget.toStdString()),
                 ovlocalize::escaped(finding.message.toStdString())});
    }
    table.print(false);
  }
  std::cout << report.languages << " languages, " << report.texts
            << " texts: " << report.findings.size() << " findings\n";
}

void printForMachines(const Report& report) {
  ovlocalize::Json findings = ovlocalize::Json::array();
  for (const Finding& finding : report.findings) {
    const QRect& frame = finding.frame;
    findings.push_back({{"language", finding.language.toStdString()},
                        {"rule", finding.rule.toStdString()},
                        {"widget", finding.widget.toStdString()},
                        {"message", finding.message.toStdString()},
                        {"frame", {frame.x(), frame.y(), frame.width(), frame.height()}}});
  }
  std::cout << ovlocalize::printed({{"languages", report.languages},
                                    {"texts", report.texts},
                                    {"findings", std::move(findings)}})
            << '\n';
}

}  // namespace ovaudit
