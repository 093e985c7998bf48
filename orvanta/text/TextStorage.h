#pragma once

#include <atomic>
#include <cstdint>

#if __has_include(<sys/single_threaded.h>)
#include <sys/single_threaded.h>
#endif

#include <orvanta/Export.h>

namespace orvanta {

/// The memory that handles to text share, and the count of those handles: the last one to let go
/// deletes it.
///
/// A count of our own, because every look-up takes and drops a handle. A `std::shared_ptr` checks
/// in each drop whether weak pointers are left, by a read wider than the write before it, which
/// makes the processor wait for that write.
class ORVANTA_EXPORT TextStorage {
 public:
  virtual ~TextStorage();
  TextStorage(const TextStorage&) = delete;
  TextStorage& operator=(const TextStorage&) = delete;

  void retain() noexcept {
    if (processHasOneThread()) {
      handles_.store(handles_.load(std::memory_order_relaxed) + 1, std::memory_order_relaxed);
    } else {
      handles_.fetch_add(1, std::memory_order_relaxed);
    }
  }

  void release() noexcept {
    if (processHasOneThread()) {
      const std::uint64_t left = handles_.load(std::memory_order_relaxed) - 1;
      handles_.store(left, std::memory_order_relaxed);
      if (left == 0) {
        destroy();
      }
    } else if (handles_.fetch_sub(1, std::memory_order_acq_rel) == 1) {
      destroy();
    }
  }

 protected:
  /// Counts the handle of its maker.
  TextStorage() noexcept = default;

 private:
  // Counting without atomic instructions, where the C library can tell that nobody could see it.
  static bool processHasOneThread() noexcept {
#if __has_include(<sys/single_threaded.h>)
    return __libc_single_threaded != 0;
#else
    return false;
#endif
  }

  void destroy() noexcept;

  std::atomic<std::uint64_t> handles_{1};
};

}  // namespace orvanta
