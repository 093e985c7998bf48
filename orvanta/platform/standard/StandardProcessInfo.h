#pragma once

#include <memory>
#include <string_view>

#include <orvanta/platform/ProcessInfo.h>

namespace orvanta::platform::standard {

/// The numbers at the start of a release's name: 6.1.0 for "6.1.0-13-amd64". What is not there
/// counts as 0.
[[nodiscard]] OperatingSystemVersion versionOfRelease(std::string_view release) noexcept;

/// The running kernel's version.
[[nodiscard]] OperatingSystemVersion kernelVersion() noexcept;

[[nodiscard]] std::shared_ptr<ProcessInfo> makeProcessInfo(const OperatingSystemVersion& version);

}  // namespace orvanta::platform::standard
