#pragma once

#include <memory>

#include <orvanta/platform/NotificationCenter.h>

namespace orvanta::platform::standard {

[[nodiscard]] std::shared_ptr<NotificationCenter> makeNotificationCenter();

}  // namespace orvanta::platform::standard
