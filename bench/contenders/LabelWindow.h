#pragma once

#include <QLabel>
#include <QRect>
#include <QWidget>
#include <string>
#include <vector>

namespace orvanta::bench::qt {

/// A window with labels at fixed places, all of them in sight once it is shown. Without a layout,
/// whose work would be the same for everybody.
class LabelWindow : public QWidget {
 public:
  explicit LabelWindow(std::size_t labels);

  [[nodiscard]] static QRect frameOf(std::size_t label);

  /// Runs what waits in the event loop; of a window that is shown, until it has been painted after
  /// the last `expectRepaint`.
  void settle();
  void expectRepaint() { painted_ = false; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  bool painted_ = false;
};

/// What labels showed when they were last painted, for as long as this lives.
class PaintedTexts : public QObject {
 public:
  explicit PaintedTexts(const std::vector<QLabel*>& labels);

  [[nodiscard]] std::string text(std::size_t label) const { return texts_[label].toStdString(); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  const std::vector<QLabel*>& labels_;
  std::vector<QString> texts_;
};

}  // namespace orvanta::bench::qt
