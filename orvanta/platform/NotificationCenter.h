#pragma once

#include <functional>

#include <orvanta/Export.h>
#include <orvanta/text/Dictionary.h>
#include <orvanta/text/String.h>
#include <orvanta/text/StringList.h>

namespace orvanta::platform {

struct Notification {
  String name;
  const void* object = nullptr;  ///< The sender; null for none.
  Dictionary<StringList> userInfo;
};

/// Hands notifications to whoever registered for them. Guards itself: every operation may be
/// called from any thread, also from inside a handler.
class ORVANTA_EXPORT NotificationCenter {
 public:
  using Handler = std::function<void(const Notification&)>;

  virtual ~NotificationCenter();
  NotificationCenter(const NotificationCenter&) = delete;
  NotificationCenter& operator=(const NotificationCenter&) = delete;

  /// Registers `handler` for notifications called `name` from the sender `object`, from any sender
  /// when that is null. `observer` only names the registration for `removeObserver`; one observer
  /// may register several times, and is then told as many times.
  virtual void addObserver(const void* observer, const String& name, const void* object,
                           Handler handler) = 0;

  /// Ends every registration of `observer`. No handler of it begins after this returns; one that
  /// another thread has already begun may still be running.
  virtual void removeObserver(const void* observer) = 0;

  /// Runs the handlers in the order of their registration, on the calling thread, before it
  /// returns. What registers meanwhile is not told of this notification; what is removed
  /// meanwhile is not told any more.
  virtual void postNotification(const Notification& notification) = 0;

 protected:
  NotificationCenter() = default;
};

}  // namespace orvanta::platform
