#include <QApplication>
#include <cstdlib>
#include <iostream>

#include <orvanta/orvanta.h>
#include <orvanta/qt/AwakeFromNib.h>
#include <orvanta/qt/UILocalizedLabel.h>
#include <orvanta/qt/platform/QtPlatform.h>

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  orvanta::platform::Platform::install(
      orvanta::qt::makeQtPlatform({.mainBundlePath = std::getenv("BUNDLE")}));
  orvanta::Localizer::sharedLocalizer().updatePreferredLocales({"fr-CA"}, nullptr);
  orvanta::qt::UILocalizedLabel label;
  label.setText("signin.title");
  orvanta::qt::awakeFromNib(&label);
  std::cout << label.text().toStdString() << '\n';
  return 0;
}
