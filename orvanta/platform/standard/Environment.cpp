#include <orvanta/platform/standard/Environment.h>

#include <cstdlib>

namespace orvanta::platform::standard {

Environment processEnvironment() {
  return [](const char* name) { return String(std::getenv(name)); };
}

}  // namespace orvanta::platform::standard
