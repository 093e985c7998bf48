#pragma once

class QWidget;

namespace orvanta::qt {

/// What the three localized widgets have in common for those who load layouts.
class LocalizedWidget {
 public:
  LocalizedWidget(const LocalizedWidget&) = delete;
  LocalizedWidget& operator=(const LocalizedWidget&) = delete;
  virtual ~LocalizedWidget() = default;

  /// Takes the designed state, text and all, and localizes the widget from now on. Only the first
  /// call does anything.
  void awakeFromNib() {
    if (!awake_) {
      awake_ = true;
      awake();
    }
  }

 protected:
  LocalizedWidget() = default;
  /// For a widget that localizes itself without a layout.
  void setAwake() { awake_ = true; }
  virtual void awake() = 0;

 private:
  bool awake_ = false;
};

}  // namespace orvanta::qt
