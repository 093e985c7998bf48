#pragma once

#include <string>
#include <vector>

#include "LanguageFile.h"

namespace ovlocalize {

/// What the check found, and how it is to be shown.
struct CheckReport {
  bool isColored = false;
  std::vector<LanguageFolder> folders;
  std::vector<Finding> general;  ///< About whole folders.
  bool showsWarnings = true;
  bool showsAll = false;  ///< Not only the first of many findings of one kind in one file.
  std::vector<std::string> ignored;  ///< Names of rules.

  [[nodiscard]] bool shows(const Finding& finding) const;
  /// Counts also what is not shown because of `showsWarnings`.
  [[nodiscard]] std::size_t count(bool isError) const;
};

void printForPeople(const CheckReport& report);
void printForMachines(const CheckReport& report);

}  // namespace ovlocalize
