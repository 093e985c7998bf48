#include <QApplication>
#include <QWidget>
#include <memory>

#include <orvanta/orvanta.h>
#include <orvanta/qt/FormLoader.h>
#include <orvanta/qt/LayoutDirectionFollower.h>
#include <orvanta/qt/platform/QtPlatform.h>

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  orvanta::platform::Platform::install(orvanta::qt::makeQtPlatform());
  const orvanta::qt::LayoutDirectionFollower direction;
  const std::unique_ptr<QWidget> window(
      orvanta::qt::FormLoader().load(QStringLiteral(":/window.ui")));
  window->show();
  return QApplication::exec();
}
