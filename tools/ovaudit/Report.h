#pragma once

#include <QList>

#include "Findings.h"

namespace ovaudit {

/// What an audit saw.
struct Report {
  QList<Finding> findings;
  qsizetype languages = 0;
  qsizetype texts = 0;  ///< Of one language.
};

/// A table with a line for each finding, and a line that counts them, on standard output.
void printForPeople(const Report& report);
void printForMachines(const Report& report);

}  // namespace ovaudit
