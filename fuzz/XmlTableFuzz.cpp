#include <string>

#include "TableInvariants.h"
#include "Target.h"

// Takes the input as a whole document or as the inside of a dictionary. Otherwise most mutations
// would only damage the frame.
void orvanta::fuzz::feed(std::string_view input) {
  const bool isDocument =
      input.starts_with("<?xml") || input.starts_with("<!") || input.starts_with("<plist");
  checkTable(std::string(isDocument ? "" : "<plist><dict>").append(input));
}
