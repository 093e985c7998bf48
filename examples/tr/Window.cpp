#include "Window.h"

#include <QEvent>
#include <QMenuBar>
#include <QVBoxLayout>

Window::Window()
    : menu_(menuBar()->addMenu(QString())),
      quit_(menu_->addAction(QString(), this, &QWidget::close)),
      count_(new QLabel),
      add_(new QPushButton) {
  setCentralWidget(new QWidget);
  auto* layout = new QVBoxLayout(centralWidget());
  layout->addWidget(count_);
  layout->addWidget(add_);
  connect(add_, &QPushButton::clicked, this, [this] {
    ++notes_;
    retranslateUi();
  });
  retranslateUi();
  resize(320, 160);
}

void Window::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange) {
    retranslateUi();
  }
  QMainWindow::changeEvent(event);
}

void Window::retranslateUi() {
  setWindowTitle(tr("Notes"));
  menu_->setTitle(tr("&File"));
  quit_->setText(tr("&Quit"));
  count_->setText(tr("You have %n note(s).", "below the menu", notes_));
  add_->setText(tr("&Add a note"));
}
