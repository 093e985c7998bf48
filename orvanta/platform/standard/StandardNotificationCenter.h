#pragma once

#include <orvanta/platform/NotificationCenter.h>

#include <memory>

namespace orvanta::platform::standard {

[[nodiscard]] std::shared_ptr<NotificationCenter> makeNotificationCenter();

}  // namespace orvanta::platform::standard
