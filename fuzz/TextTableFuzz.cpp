#include "TableInvariants.h"
#include "Target.h"

void orvanta::fuzz::feed(std::string_view input) {
  checkTable(input);
}
