#include <cstdlib>

#include <orvanta/standard/Environment.h>

namespace orvanta::standard {

Environment processEnvironment() {
  return [](const char* name) { return String(std::getenv(name)); };
}

}  // namespace orvanta::standard
