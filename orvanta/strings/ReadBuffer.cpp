#include <algorithm>
#include <new>
#include <utility>

#include <orvanta/strings/ReadBuffer.h>
#include <orvanta/strings/ReadFully.h>

namespace orvanta::strings {

namespace {

// Large enough for few system calls, small enough for the second-level cache.
constexpr std::size_t kObservedPiece = std::size_t{256} * 1024;

}  // namespace

void ReadBuffer::reserve(std::size_t capacity) {
  if (capacity <= capacity_) {
    return;
  }
  // Grow by half at least, so that files of slowly growing sizes do not reallocate each time.
  capacity = std::max(capacity, capacity_ + capacity_ / 2);
  Bytes larger(allocateBytes(capacity));
  if (larger == nullptr) {
    throw std::bad_alloc();
  }
  providePages(larger.get(), capacity);
  std::copy_n(data_.get(), size_, larger.get());
  data_ = std::move(larger);
  capacity_ = capacity;
}

bool ReadBuffer::readToEnd(ByteSource& file, const Observer& observer) {
  const std::size_t piece = observer ? kObservedPiece : std::size_t{kTooLargeFile};
  for (;;) {
    while (size_ < capacity_) {
      const auto count = file.read({data_.get() + size_, std::min(piece, capacity_ - size_)});
      if (!count || *count == 0) {
        return count.has_value();
      }
      size_ += *count;
      if (observer) {
        observer(view());
      }
    }
    if (capacity_ > kTooLargeFile / 2) {
      return false;
    }
    reserve(2 * capacity_);
  }
}

bool ReadBuffer::read(ByteSource& file, std::uint64_t expectedSize, const Observer& observer) {
  size_ = 0;
  if (expectedSize >= kTooLargeFile) {
    return false;
  }
  // One byte more than expected, so that the end of the file is seen without enlarging the buffer.
  reserve(static_cast<std::size_t>(expectedSize) + 1);
  const bool isRead = readToEnd(file, observer);
  size_ = isRead ? size_ : 0;
  return isRead;
}

void ReadBuffer::release() noexcept {
  data_.reset();
  size_ = 0;
  capacity_ = 0;
}

}  // namespace orvanta::strings
