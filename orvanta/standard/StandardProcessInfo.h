#pragma once

#include <memory>
#include <string_view>

#include <orvanta/platform/ProcessInfo.h>

namespace orvanta::standard {

/// The numbers at the start of a release's name: 6.1.0 for "6.1.0-13-amd64". What is not there
/// counts as 0.
[[nodiscard]] platform::OperatingSystemVersion versionOfRelease(std::string_view release) noexcept;

/// The running kernel's version.
[[nodiscard]] platform::OperatingSystemVersion kernelVersion() noexcept;

[[nodiscard]] std::shared_ptr<platform::ProcessInfo> makeProcessInfo(
    const platform::OperatingSystemVersion& version);

}  // namespace orvanta::standard
