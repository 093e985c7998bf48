#include "OrderWindow.h"

#include <QActionGroup>
#include <QEvent>
#include <QMap>
#include <QMenu>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include <orvanta/orvanta.h>
#include <orvanta/qt/FormLoader.h>
#include <orvanta/qt/Localize.h>
#include <orvanta/qt/Text.h>
#include <orvanta/qt/UILocalizedButton.h>
#include <orvanta/qt/UILocalizedLabel.h>
#include <orvanta/qt/UILocalizedTextField.h>

#include "DownloadedLanguages.h"

namespace demo {

namespace {

using orvanta::qt::fromQString;
using orvanta::qt::localize;
using orvanta::qt::toQString;
using orvanta::qt::UILocalizedButton;
using orvanta::qt::UILocalizedLabel;
using orvanta::qt::UILocalizedTextField;

}  // namespace

OrderWindow::OrderWindow(QString downloadsPath, QWidget* parent)
    : QWidget(parent),
      localizer_(orvanta::Localizer::sharedLocalizer()),
      downloadsPath_(std::move(downloadsPath)),
      batch_(*this),
      observer_([this] { languageChanged(); }) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(orvanta::qt::FormLoader().load(QStringLiteral(":/window.ui"), this));
  findWidgets();
  connectActions();
  languageChanged();
  localize(this, "windowTitle", QStringLiteral("order.title"));
  setItemCount(7);
  resize(940, 640);
}

// Layouts do not count the lines of wrapped labels in the least height of a window.
bool OrderWindow::event(QEvent* event) {
  const bool handled = QWidget::event(event);
  if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Resize) {
    QSize least = layout()->totalMinimumSize();
    least.setHeight(layout()->totalMinimumHeightForWidth(std::max(width(), least.width())));
    setMinimumSize(least);
  }
  return handled;
}

void OrderWindow::findWidgets() {
  languageButton_ = findChild<UILocalizedButton*>(QStringLiteral("languageButton"));
  downloadButton_ = findChild<UILocalizedButton*>(QStringLiteral("downloadButton"));
  signInButton_ = findChild<UILocalizedButton*>(QStringLiteral("signInButton"));
  placeButton_ = findChild<UILocalizedButton*>(QStringLiteral("placeButton"));
  emailField_ = findChild<UILocalizedTextField*>(QStringLiteral("emailField"));
  passwordField_ = findChild<UILocalizedTextField*>(QStringLiteral("passwordField"));
  summaryLabel_ = findChild<UILocalizedLabel*>(QStringLiteral("summaryLabel"));
  statusLabel_ = findChild<UILocalizedLabel*>(QStringLiteral("statusLabel"));
}

void OrderWindow::connectActions() {
  languageMenu_ = new QMenu(languageButton_);
  languageButton_->setMenu(languageMenu_);
  connect(downloadButton_, &QPushButton::clicked, this, &OrderWindow::downloadLanguages);
  connect(placeButton_, &QPushButton::clicked, this, [this] { showStatus("order.placed"); });
  connect(signInButton_, &QPushButton::clicked, this, [this] { placeButton_->setFocus(); });
  // What the customer has typed stays when the language changes.
  connect(emailField_, &QLineEdit::textEdited, this, [this] { emailField_->setKey({}); });
}

void OrderWindow::fillLanguageMenu() {
  QMap<QString, QString> namesByIdentifier;
  for (const auto& [identifier, language] : localizer_.stringCache().availableLanguages()) {
    namesByIdentifier.insert(
        toQString(identifier),
        toQString(language->bundle()->localizedStringForKey("language.name", identifier)));
  }
  languageMenu_->clear();
  auto* group = new QActionGroup(languageMenu_);
  const orvanta::StringList& current = localizer_.currentLocales();
  for (auto entry = namesByIdentifier.begin(); entry != namesByIdentifier.end(); ++entry) {
    const orvanta::String identifier = fromQString(entry.key());
    QAction* action = languageMenu_->addAction(entry.value());
    action->setData(entry.key());
    action->setCheckable(true);
    action->setChecked(!current.empty() && current.front() == identifier);
    group->addAction(action);
    connect(action, &QAction::triggered, this,
            [this, identifier] { localizer_.updatePreferredLocales({identifier}, {}); });
  }
}

void OrderWindow::downloadLanguages() {
  if (storeDownloadedLanguages(downloadsPath_)) {
    fillLanguageMenu();
    showStatus("status.downloaded");
  }
}

void OrderWindow::showStatus(const char* key) {
  statusLabel_->setKey(QString::fromLatin1(key));
}

// What a change of language sets and no key expresses: the check mark in the menu, and the status.
void OrderWindow::languageChanged() {
  fillLanguageMenu();
  showStatus("status.language");
}

void OrderWindow::setItemCount(int count) {
  // What is ordered, and in a line of its own how many things that are.
  localize(summaryLabel_, "summary",
           [this](const QString& things) {
             const orvanta::String list = localizer_.stringWithLocalizedPunctuation(
                 localizer_.localizedStringForKey("order.list"));
             summaryLabel_->setText(toQString(list) + QLatin1Char('\n') + things);
           },
           QStringLiteral("order.items"), {{"count", count}});
}

}  // namespace demo
