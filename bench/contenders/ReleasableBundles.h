#pragma once

#include <memory>
#include <utility>

#include <orvanta/platform/Bundle.h>

namespace orvanta::bench {

/// Passes on to another registry, until it is told to let go of it and of all tables with it.
///
/// An installed platform is kept for the life of the process. A row that installs one after the
/// other would fill the memory with their tables.
class ReleasableBundles final : public platform::BundleRegistry {
 public:
  explicit ReleasableBundles(std::shared_ptr<platform::BundleRegistry> bundles)
      : bundles_(std::move(bundles)) {}

  /// After this nothing may be asked any more.
  void release() noexcept { bundles_ = nullptr; }

  std::shared_ptr<platform::Bundle> mainBundle() const override { return bundles_->mainBundle(); }
  std::shared_ptr<platform::Bundle> bundleForLibrary() override {
    return bundles_->bundleForLibrary();
  }
  std::shared_ptr<platform::Bundle> bundleWithPath(const String& path) override {
    return bundles_->bundleWithPath(path);
  }
  void refreshTables() override { bundles_->refreshTables(); }

 private:
  std::shared_ptr<platform::BundleRegistry> bundles_;
};

}  // namespace orvanta::bench
