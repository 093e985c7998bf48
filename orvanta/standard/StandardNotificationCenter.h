#pragma once

#include <memory>

#include <orvanta/platform/NotificationCenter.h>

namespace orvanta::standard {

[[nodiscard]] std::shared_ptr<platform::NotificationCenter> makeNotificationCenter();

}  // namespace orvanta::standard
