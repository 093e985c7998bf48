#pragma once

#include <QGridLayout>
#include <QLabel>
#include <QWidget>
#include <string>
#include <vector>

namespace orvanta::bench::qt {

/// How labels are placed: in a layout that gives each the room that its text needs, as in most
/// windows, or at fixed places, where long texts are cut off.
enum class Arrangement { layout, places };

/// A window with labels, all of them visible once it is shown.
class LabelWindow : public QWidget {
 public:
  explicit LabelWindow(Arrangement arrangement);

  /// Moves a label of this window to the next place.
  void place(QLabel* label);

  /// Processes pending events. When the window is shown, returns only after it was painted since
  /// the last `expectRepaint`.
  void settle();
  void expectRepaint() { painted_ = false; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QGridLayout* grid_ = nullptr;
  int placed_ = 0;
  bool painted_ = false;
};

/// Records the texts that labels had when they were last painted, while this object lives.
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
