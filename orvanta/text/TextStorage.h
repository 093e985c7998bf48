#pragma once

#include <atomic>
#include <cstdint>

#if __has_include(<sys/single_threaded.h>)
#include <sys/single_threaded.h>
#endif

#include <orvanta/Export.h>

namespace orvanta {

/// The memory that handles to text share, with the count of those handles. The last handle to be
/// released deletes it. Thread-safe.
///
/// An intrusive count, because every look-up takes and drops a handle. Releasing a
/// `std::shared_ptr` also checks for weak pointers, by a read that is wider than the write before
/// it and so waits for that write (a failed store-to-load forwarding).
class ORVANTA_EXPORT TextStorage {
 public:
  virtual ~TextStorage();
  TextStorage(const TextStorage&) = delete;
  TextStorage& operator=(const TextStorage&) = delete;

  /// Counts one handle more.
  void retain() noexcept {
    if (processHasOneThread()) {
      handles_.store(handles_.load(std::memory_order_relaxed) + 1, std::memory_order_relaxed);
    } else {
      handles_.fetch_add(1, std::memory_order_relaxed);
    }
  }

  /// Counts one handle less, and deletes this with the last.
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
  /// With a count of one, for the handle that is being made.
  TextStorage() noexcept = default;

 private:
  // While the C library knows of one thread only, the count needs no atomic read-modify-write.
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
