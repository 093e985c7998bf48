#pragma once

namespace orvanta {

class LocalizedControl;

/// A weak back-pointer to a control, for notification handlers, queued steps and refreshes under
/// way. Copied on any thread, but dereferenced on the main thread only, where controls are used and
/// destroyed.
class MainThreadAnchor {
 public:
  /// Leads to `control` until `reset`.
  explicit MainThreadAnchor(LocalizedControl& control) noexcept : control_(&control) {}

  /// The control; null once it was destroyed.
  [[nodiscard]] LocalizedControl* control() const noexcept { return control_; }
  /// To be called when the control is destroyed.
  void reset() noexcept { control_ = nullptr; }

 private:
  LocalizedControl* control_;
};

}  // namespace orvanta
