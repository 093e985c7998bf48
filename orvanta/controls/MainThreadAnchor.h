#pragma once

namespace orvanta {

class LocalizedControl;

/// What other threads, later turns and steps under way hold of a control, in place of the control.
///
/// A control is touched, and dies, on the main thread alone. Who wants something of it from
/// elsewhere takes a step to the main thread, and finds there whether the control still lives.
class MainThreadAnchor {
 public:
  explicit MainThreadAnchor(LocalizedControl& control) noexcept : control_(&control) {}

  /// The control, or null once it has died. On the main thread only.
  [[nodiscard]] LocalizedControl* control() const noexcept { return control_; }
  /// On the main thread only.
  void letGo() noexcept { control_ = nullptr; }

 private:
  LocalizedControl* control_;
};

}  // namespace orvanta
