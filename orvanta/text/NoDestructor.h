#pragma once

#include <cstddef>
#include <new>
#include <utility>

namespace orvanta {

/// A process-wide object that is never destroyed: threads, and the destructors of static objects,
/// may use it until the process ends. For function-local statics:
///
///     static NoDestructor<Registry> registry(arguments);
///     return *registry;
template <typename T>
class NoDestructor {
 public:
  /// Constructs the object from these arguments.
  template <typename... Arguments>
  explicit NoDestructor(Arguments&&... arguments) {
    ::new (static_cast<void*>(storage_)) T(std::forward<Arguments>(arguments)...);
  }
  NoDestructor(const NoDestructor&) = delete;
  NoDestructor& operator=(const NoDestructor&) = delete;
  ~NoDestructor() = default;

  /// The object; valid until the process ends.
  [[nodiscard]] T& operator*() noexcept { return *get(); }
  /// The object; valid until the process ends.
  [[nodiscard]] T* operator->() noexcept { return get(); }

 private:
  [[nodiscard]] T* get() noexcept { return std::launder(reinterpret_cast<T*>(storage_)); }

  alignas(T) std::byte storage_[sizeof(T)];
};

}  // namespace orvanta
