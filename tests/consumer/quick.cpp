#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <cstdlib>
#include <iostream>
#include <memory>

#include <orvanta/orvanta.h>
#include <orvanta/qt/platform/QtPlatform.h>

int main(int argc, char** argv) {
  const QGuiApplication application(argc, argv);
  orvanta::platform::Platform::install(
      orvanta::qt::makeQtPlatform({.mainBundlePath = std::getenv("BUNDLE")}));
  orvanta::Localizer::sharedLocalizer().updatePreferredLocales({"fr-CA"}, nullptr);
  QQmlEngine engine;
  QQmlComponent component(&engine);
  component.setData("import Orvanta\nLocalizedLabel { text: 'signin.title' }", {});
  const std::unique_ptr<QObject> label(component.create());
  std::cerr << component.errorString().toStdString();
  std::cout << (label ? label->property("text").toString().toStdString() : "") << '\n';
  return 0;
}
