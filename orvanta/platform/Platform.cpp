#include <atomic>
#include <deque>
#include <mutex>

#include <orvanta/platform/DefaultPlatform.h>
#include <orvanta/platform/Platform.h>
#include <orvanta/text/NoDestructor.h>

namespace orvanta::platform {

Log::~Log() = default;
MainQueue::~MainQueue() = default;
NotificationCenter::~NotificationCenter() = default;
ProcessInfo::~ProcessInfo() = default;

namespace {

std::atomic<const Platform*> installed{nullptr};
std::mutex installing;

// Keeps every platform for the life of the process, replaced ones too: bundles and memos made from
// them may still be in use. Call with `installing` locked.
const Platform* keep(Platform platform) {
  static NoDestructor<std::deque<Platform>> kept;
  return &kept->emplace_back(std::move(platform));
}

}  // namespace

const Platform& Platform::current() {
  if (const Platform* platform = installed.load(std::memory_order_acquire)) {
    return *platform;
  }
  const std::scoped_lock lock(installing);
  if (installed.load(std::memory_order_relaxed) == nullptr) {
    installed.store(keep(makeDefaultPlatform()), std::memory_order_release);
  }
  return *installed.load(std::memory_order_relaxed);
}

void Platform::install(Platform platform) {
  const std::scoped_lock lock(installing);
  installed.store(keep(std::move(platform)), std::memory_order_release);
}

}  // namespace orvanta::platform
