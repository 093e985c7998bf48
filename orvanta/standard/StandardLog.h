#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include <orvanta/platform/Log.h>

namespace orvanta::standard {

/// A log that hands each message to `sink`, or writes it as a line to standard error.
[[nodiscard]] std::shared_ptr<platform::Log> makeLog(
    std::function<void(std::string_view message)> sink);

}  // namespace orvanta::standard
