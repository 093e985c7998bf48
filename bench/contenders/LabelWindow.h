#pragma once

#include <QGridLayout>
#include <QLabel>
#include <QWidget>
#include <string>
#include <vector>

namespace orvanta::bench::qt {

/// Where labels stand: in a layout that gives each the room that its text needs, as in most
/// windows, or at fixed places, where texts that are too long are cut off.
enum class Arrangement { layout, places };

/// A window with labels, all of them in sight once it is shown.
class LabelWindow : public QWidget {
 public:
  explicit LabelWindow(Arrangement arrangement);

  /// Puts a label of this window into its next place.
  void place(QLabel* label);

  /// Runs what waits in the event loop; of a window that is shown, until it has been painted after
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
