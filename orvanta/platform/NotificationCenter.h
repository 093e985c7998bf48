#pragma once

#include <functional>

#include <orvanta/Export.h>
#include <orvanta/text/Dictionary.h>
#include <orvanta/text/String.h>
#include <orvanta/text/StringList.h>

namespace orvanta::platform {

/// What observers are told. An ordinary value.
struct Notification {
  String name;                      ///< What happened.
  const void* object = nullptr;     ///< The sender; null for none.
  Dictionary<StringList> userInfo;  ///< Details under their keys; possibly absent.
};

/// Delivers notifications to the observers that registered for them. Thread-safe; every operation
/// may also be called from inside a handler.
class ORVANTA_EXPORT NotificationCenter {
 public:
  /// Called with each notification, on the thread that posts it.
  using Handler = std::function<void(const Notification&)>;

  virtual ~NotificationCenter();
  NotificationCenter(const NotificationCenter&) = delete;
  NotificationCenter& operator=(const NotificationCenter&) = delete;

  /// Registers `handler` for notifications called `name` from the sender `object`, from any sender
  /// when that is null. `observer` identifies the registration for `removeObserver` and is never
  /// dereferenced. Each registration of one observer is told.
  virtual void addObserver(const void* observer, const String& name, const void* object,
                           Handler handler) = 0;

  /// Ends every registration of `observer`. A post on this thread, or one that begins later, calls
  /// no handler of it any more. A post that is under way on another thread may still be in such a
  /// handler, or be about to enter it: what a handler uses must outlive that, or be reached through
  /// something that does.
  virtual void removeObserver(const void* observer) noexcept = 0;

  /// Calls the handlers in the order of their registration, on the calling thread, before it
  /// returns. A handler that is registered meanwhile is not called for this notification; one that
  /// is removed meanwhile is not called any more. If handlers throw, the others are called all the
  /// same, and then the first exception is rethrown to the caller.
  virtual void postNotification(const Notification& notification) = 0;

 protected:
  NotificationCenter() = default;
};

}  // namespace orvanta::platform
