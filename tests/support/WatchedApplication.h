#pragma once

#include <memory>
#include <string>
#include <utility>

#include <orvanta/cache/OVStringCache.h>

#include "ForwardingFileManager.h"
#include "TestApplication.h"
#include "UpdateFixture.h"

namespace orvanta::test {

/// An application whose file operations go through a hook.
class WatchedApplication : public TestApplication {
 public:
  explicit WatchedApplication(const Languages& shipped = {}) : TestApplication(shipped) {
    platform::Platform replacements = platform::Platform::current();
    replacements.files = files_ = std::make_shared<ForwardingFileManager>(replacements.files);
    replacements.bundles = nullptr;
    standard::StandardOptions options;
    options.mainBundlePath = bundle();
    platform::Platform::install(standard::makeStandardPlatform(options, replacements));
  }

  void setHook(FileHook hook) { files_->setHook(std::move(hook)); }

  /// Updates one language, watched by the hook.
  StringsUpdate update(const std::string& language, const Pairs& pairs, FileHook hook = {}) {
    StringsUpdate reported{};
    setHook(std::move(hook));
    OVStringCache().updateStrings(payloadOf({{language, pairs}}), "main", "app",
                                  [&](const StringsUpdate& update) { reported = update; });
    setHook({});
    return reported;
  }

 private:
  std::shared_ptr<ForwardingFileManager> files_;
};

}  // namespace orvanta::test
