#pragma once

#include <QObject>
#include <memory>

namespace demo {
class OrderWindow;
}

class OrderWindowTest : public QObject {
  Q_OBJECT

 public:
  OrderWindowTest();
  ~OrderWindowTest() override;

 private slots:
  void init();
  void speaksTheLanguageThatIsClicked();
  void cutsNothingOffInAnyLanguage();
  void keepsWhatWasTyped();
  void refreshesFromAWorkerThread();
  void downloadsALanguageAndSpeaksIt();

 private:
  template <typename Widget>
  Widget* find(const char* name) const;

  std::unique_ptr<demo::OrderWindow> window_;
};
