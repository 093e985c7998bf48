#pragma once

#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QPushButton>

/// A window as any Qt application has it. It knows nothing of the library.
class Window : public QMainWindow {
  Q_OBJECT

 public:
  Window();

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void retranslateUi();

  int notes_ = 2;
  QMenu* menu_;
  QAction* quit_;
  QLabel* count_;
  QPushButton* add_;
};
