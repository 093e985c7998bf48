#include <string>

#include <orvanta/cache/StringsFileReplacement.h>
#include <orvanta/platform/Platform.h>
#include <orvanta/text/FormatArgument.h>

namespace orvanta {

void logReplacement(const Replacement& replacement, const URL& file) {
  std::string message = replacement.isInPlace ? "file " : "error saving strings file ";
  message += formatArgument(file.absoluteString());
  message += replacement.isInPlace ? " written to cache" : "";
  platform::Platform::current().log->log(message);
}

}  // namespace orvanta
