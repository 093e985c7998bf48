#include <string>

#include <orvanta/cache/LoggedRemoval.h>
#include <orvanta/platform/Platform.h>

namespace orvanta {

bool removeItemLoggingFailure(const URL& item) {
  const platform::Platform& platform = platform::Platform::current();
  const Status status = platform.files->removeItemAtURL(item);
  if (!status.ok()) {
    std::string message = "Error " + std::to_string(status.code()) + " deleting file:";
    message += status.localizedDescription().view();
    platform.log->log(message);
  }
  return status.ok();
}

}  // namespace orvanta
