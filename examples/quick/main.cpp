#include <QGuiApplication>
#include <QQmlApplicationEngine>

#include <orvanta/orvanta.h>
#include <orvanta/qt/platform/QtPlatform.h>

int main(int argc, char** argv) {
  const QGuiApplication application(argc, argv);
  orvanta::platform::Platform::install(orvanta::qt::makeQtPlatform());
  QQmlApplicationEngine engine(QStringLiteral("qrc:/Main.qml"));
  return engine.rootObjects().isEmpty() ? 1 : QGuiApplication::exec();
}
