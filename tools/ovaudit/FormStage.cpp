
#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QFontMetrics>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QStyleOptionFrame>
#include <QStyleOptionGroupBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTextDocument>
#include <algorithm>
#include <memory>
#include <utility>

#include <ovlocalize/Settings.h>

#include <orvanta/qt/FormLoader.h>
#include <orvanta/qt/UILocalizedButton.h>

#include "Stage.h"

namespace ovaudit {

namespace {

constexpr int kGap = 4;  // What styles leave between an icon and a text.

QString withoutMnemonics(QString text) {
  for (qsizetype at = text.indexOf(u'&'); at >= 0; at = text.indexOf(u'&', at + 1)) {
    text.remove(at, 1);
  }
  return text;
}

QString nameOf(const QObject& object) {
  return object.objectName().isEmpty() ? QLatin1String(object.metaObject()->className())
                                       : object.objectName();
}

/// Collects the texts of one widget.
class Collector {
 public:
  Collector(QWidget& window, QWidget& widget, QList<DrawnText>& texts)
      : window_(window), widget_(widget), texts_(texts) {}

  void collect() {
    if (!widget_.isVisibleTo(&window_) && &widget_ != &window_) {
      return;
    }
    if (auto* const label = qobject_cast<QLabel*>(&widget_)) {
      addLabel(*label);
    } else if (auto* const field = qobject_cast<QLineEdit*>(&widget_)) {
      addField(*field);
    } else if (auto* const button = qobject_cast<QAbstractButton*>(&widget_)) {
      addButton(*button);
    } else if (auto* const box = qobject_cast<QComboBox*>(&widget_)) {
      addItems(*box);
    } else if (auto* const tabs = qobject_cast<QTabBar*>(&widget_)) {
      addTabs(*tabs);
    } else if (auto* const group = qobject_cast<QGroupBox*>(&widget_)) {
      addGroup(*group);
    }
  }

 private:
  void add(const char* what, const QString& text, QRect place, QSize needed, Qt::Alignment side) {
    if (!text.isEmpty()) {
      place.moveTopLeft(widget_.mapTo(&window_, place.topLeft()));
      texts_.append({&widget_, nameOf(widget_), QLatin1String(what), text, widget_.font(), true,
                     place, visiblePart(place), needed, side});
    }
  }

  // What the parents leave of it.
  [[nodiscard]] QRect visiblePart(QRect place) const {
    for (const QWidget* widget = &widget_; widget != &window_; widget = widget->parentWidget()) {
      const QWidget* const parent = widget->parentWidget();
      place &= QRect(parent->mapTo(&window_, QPoint(0, 0)), parent->size());
    }
    return place;
  }

  [[nodiscard]] QSize sizeOf(const QString& text) const {
    return withoutLeading(widget_.fontMetrics().size(0, text), text, widget_.fontMetrics());
  }

  void addLabel(const QLabel& label) {
    const QRect place = label.contentsRect().adjusted(label.margin(), label.margin(),
                                                      -label.margin(), -label.margin());
    const bool isRich = label.textFormat() == Qt::RichText ||
                        (label.textFormat() == Qt::AutoText && Qt::mightBeRichText(label.text()));
    QString text = label.buddy() != nullptr ? withoutMnemonics(label.text()) : label.text();
    QSize needed = sizeOf(text);
    if (isRich) {
      QTextDocument document;
      document.setHtml(label.text());
      text = document.toPlainText();
      const QSize outside = label.size() - place.size();
      needed = label.wordWrap() ? QSize(0, label.heightForWidth(label.width()) - outside.height())
                                : label.minimumSizeHint() - outside;
    } else if (label.wordWrap()) {
      const QRect most(0, 0, place.width(), QWIDGETSIZE_MAX);
      needed = withoutLeading(label.fontMetrics().boundingRect(most, Qt::TextWordWrap, text).size(),
                              text, label.fontMetrics());
    }
    // As QLabel does: the text's own direction decides what left is.
    const Qt::LayoutDirection direction = text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
    add("text", text, place, needed, QStyle::visualAlignment(direction, label.alignment()));
  }

  void addField(const QLineEdit& field) {
    constexpr int kSideMargin = 2;
    QStyleOptionFrame option;
    option.initFrom(&field);
    option.lineWidth =
        field.hasFrame() ? field.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &field)
                         : 0;
    QRect place = field.style()->subElementRect(QStyle::SE_LineEditContents, &option, &field);
    place = place.marginsRemoved(field.textMargins()).adjusted(kSideMargin, 0, -kSideMargin, 0);
    const bool isEmpty = field.text().isEmpty();
    const QString text = isEmpty ? field.placeholderText() : field.displayText();
    const Qt::LayoutDirection direction = text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
    add(isEmpty ? "placeholderText" : "text", text, place, sizeOf(text),
        QStyle::visualAlignment(direction, field.alignment()));
  }

  void addButton(const QAbstractButton& button) {
    QStyleOptionButton option;
    option.initFrom(&button);
    option.text = button.text();
    QStyle::SubElement element = QStyle::SE_PushButtonContents;
    Qt::Alignment side = Qt::AlignHCenter;
    int menu = 0;
    if (const auto* const push = qobject_cast<const QPushButton*>(&button)) {
      if (push->menu() != nullptr) {
        option.features |= QStyleOptionButton::HasMenu;
        menu = button.style()->pixelMetric(QStyle::PM_MenuButtonIndicator, &option, &button);
      }
    } else if (qobject_cast<const QCheckBox*>(&button) != nullptr) {
      element = QStyle::SE_CheckBoxContents;
      side = QStyle::visualAlignment(button.layoutDirection(), Qt::AlignLeft);
    } else if (qobject_cast<const QRadioButton*>(&button) != nullptr) {
      element = QStyle::SE_RadioButtonContents;
      side = QStyle::visualAlignment(button.layoutDirection(), Qt::AlignLeft);
    }
    if (const auto* const own = qobject_cast<const orvanta::qt::UILocalizedButton*>(&button)) {
      side = QStyle::visualAlignment(button.layoutDirection(), own->titleAlignment());
    }
    const QRect place = button.style()->subElementRect(element, &option, &button);
    const QString text = withoutMnemonics(button.text());
    const int icon = button.icon().isNull() ? 0 : button.iconSize().width() + kGap;
    add("text", text, place, sizeOf(text) + QSize(icon + menu, 0), side);
  }

  void addItems(const QComboBox& box) {
    QStyleOptionComboBox option;
    option.initFrom(&box);
    const QRect place = box.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                    QStyle::SC_ComboBoxEditField, &box);
    for (int index = 0; index < box.count(); ++index) {
      add("item", box.itemText(index), place, sizeOf(box.itemText(index)), Qt::AlignHCenter);
    }
  }

  void addTabs(const QTabBar& tabs) {
    for (int index = 0; index < tabs.count(); ++index) {
      const QString text = withoutMnemonics(tabs.tabText(index));
      add("tab", text, tabs.tabRect(index) & tabs.rect(), sizeOf(text), Qt::AlignHCenter);
    }
  }

  void addGroup(const QGroupBox& group) {
    const QString text = withoutMnemonics(group.title());
    const QRect place(0, 0, group.width(), group.fontMetrics().height());
    add("title", text, place, sizeOf(text), Qt::AlignHCenter);
  }

  QWidget& window_;
  QWidget& widget_;
  QList<DrawnText>& texts_;
};

// "ovToolTip" holds the key of "toolTip". Properties of other objects, such as actions, are drawn
// in the window's font.
void addBoundProperties(QWidget& window, QObject& object, QList<DrawnText>& texts) {
  auto* const widget = qobject_cast<QWidget*>(&object);
  for (QByteArray name : object.dynamicPropertyNames()) {
    if (!name.startsWith("ov") || name.size() < 3) {
      continue;
    }
    name = name.sliced(2);
    name[0] = static_cast<char>(QChar::toLower(static_cast<uchar>(name[0])));
    const QString text = object.property(name.constData()).toString();
    if (!text.isEmpty()) {
      const QFont font = (widget == nullptr ? &window : widget)->font();
      texts.append({&object, nameOf(object), QLatin1String(name), text, font, false});
    }
  }
}

class FormStage final : public Stage {
 public:
  explicit FormStage(std::unique_ptr<QWidget> window) : window_(std::move(window)) {
    for (const QStackedWidget* const stack : window_->findChildren<QStackedWidget*>()) {
      for (int index = 0; index < stack->count(); ++index) {
        pages_ << stack->widget(index);
      }
    }
    window_->show();
  }

  [[nodiscard]] int views() const override { return std::max(1, int(pages_.size())); }

  // Pages may stand on pages.
  void show(int view) override {
    for (QWidget* page = pages_.value(view); page != nullptr; page = page->parentWidget()) {
      auto* const stack = qobject_cast<QStackedWidget*>(page->parentWidget());
      if (stack == nullptr) {
        continue;
      }
      if (auto* const tabs = qobject_cast<QTabWidget*>(stack->parentWidget())) {
        tabs->setCurrentWidget(page);
      } else {
        stack->setCurrentWidget(page);
      }
    }
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents();
  }

  [[nodiscard]] QList<DrawnText> texts() const override {
    QList<DrawnText> texts;
    QList<QObject*> objects = window_->findChildren<QObject*>();
    objects.prepend(window_.get());
    for (QObject* const object : objects) {
      if (auto* const widget = qobject_cast<QWidget*>(object)) {
        Collector(*window_, *widget, texts).collect();
      }
      addBoundProperties(*window_, *object, texts);
    }
    return texts;
  }

  [[nodiscard]] QImage picture() const override {
    constexpr int kScale = 2;
    QImage image(window_->size() * kScale, QImage::Format_RGB32);
    image.setDevicePixelRatio(kScale);
    window_->render(&image);
    return image;
  }

 private:
  std::unique_ptr<QWidget> window_;
  QList<QWidget*> pages_;
};

}  // namespace

std::unique_ptr<Stage> makeFormStage(const std::string& file) {
  orvanta::qt::FormLoader loader;
  std::unique_ptr<QWidget> window(loader.load(QString::fromStdString(file)));
  if (window == nullptr) {
    const std::string reason = loader.errorString().toStdString();
    throw ovlocalize::Failure(reason.empty() ? file + " cannot be read"
                                             : file + " is no form: " + reason);
  }
  return std::make_unique<FormStage>(std::move(window));
}

}  // namespace ovaudit
