#include <cstdlib>

#include <orvanta/platform/standard/Environment.h>

namespace orvanta::platform::standard {

Environment processEnvironment() {
  return [](const char* name) { return String(std::getenv(name)); };
}

}  // namespace orvanta::platform::standard
