#pragma once

#include <QWidget>

#include <orvanta/locale/Localizer.h>
#include <orvanta/qt/LanguageChangeObserver.h>
#include <orvanta/qt/LayoutDirectionFollower.h>
#include <orvanta/qt/RepaintBatch.h>

class QMenu;

namespace orvanta::qt {
class UILocalizedButton;
class UILocalizedLabel;
class UILocalizedTextField;
}  // namespace orvanta::qt

namespace demo {

/// The window of a café: signing in, an order, and a menu of languages. What its form describes
/// localizes itself; the window adds what a form cannot express.
class OrderWindow : public QWidget {
  Q_OBJECT

 public:
  /// `downloadsPath`: the JSON file that "download more languages" fetches.
  explicit OrderWindow(QString downloadsPath, QWidget* parent = nullptr);

  /// How many things the summary says are ordered.
  void setItemCount(int count);

 protected:
  bool event(QEvent* event) override;

 private:
  void findWidgets();
  void connectActions();
  void fillLanguageMenu();
  void downloadLanguages();
  void showStatus(const char* key);
  void languageChanged();

  orvanta::Localizer& localizer_;
  QString downloadsPath_;
  orvanta::qt::LayoutDirectionFollower direction_;
  orvanta::qt::RepaintBatch batch_;
  orvanta::qt::LanguageChangeObserver observer_;

  QMenu* languageMenu_ = nullptr;
  orvanta::qt::UILocalizedButton* languageButton_ = nullptr;
  orvanta::qt::UILocalizedButton* downloadButton_ = nullptr;
  orvanta::qt::UILocalizedButton* signInButton_ = nullptr;
  orvanta::qt::UILocalizedButton* placeButton_ = nullptr;
  orvanta::qt::UILocalizedTextField* emailField_ = nullptr;
  orvanta::qt::UILocalizedTextField* passwordField_ = nullptr;
  orvanta::qt::UILocalizedLabel* summaryLabel_ = nullptr;
  orvanta::qt::UILocalizedLabel* statusLabel_ = nullptr;
};

}  // namespace demo
