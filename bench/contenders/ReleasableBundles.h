#pragma once

#include <memory>
#include <utility>

#include <orvanta/platform/Bundle.h>

namespace orvanta::bench {

/// Forwards to another registry until it is told to release that registry with all its tables.
///
/// Installed platforms are never freed. A row that installs one after the other would otherwise
/// fill the memory with their tables.
class ReleasableBundles final : public platform::BundleRegistry {
 public:
  explicit ReleasableBundles(std::shared_ptr<platform::BundleRegistry> bundles)
      : bundles_(std::move(bundles)) {}

  /// Releases the registry. Nothing may be called afterwards.
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
