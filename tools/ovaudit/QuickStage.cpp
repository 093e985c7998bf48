#include <ovlocalize/Settings.h>

#include "Stage.h"

#ifdef ORVANTA_AUDITS_QUICK
#include <QCoreApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTextDocument>
#include <algorithm>
#include <cmath>
#include <utility>
#endif

namespace ovaudit {

using ovlocalize::Failure;

#ifdef ORVANTA_AUDITS_QUICK

namespace {

// The type's name without the suffix that the QML engine adds, such as "_QMLTYPE_12".
QString className(const QObject& object) {
  const QString name = QLatin1String(object.metaObject()->className());
  return name.section(QStringLiteral("_QML"), 0, 0);
}

// The object name of the item, else of its nearest ancestor that has one: the text of a button is a
// child item without a name. Items without a QML context are skipped: Qt created and named them.
QString nameOf(const QQuickItem& item) {
  for (const QQuickItem* around = &item; around != nullptr; around = around->parentItem()) {
    if (!around->objectName().isEmpty() && QQmlEngine::contextForObject(around) != nullptr) {
      return around->objectName();
    }
  }
  return className(item);
}

bool drawsText(const QQuickItem& item) {
  return item.property("contentWidth").isValid() && item.property("font").isValid() &&
         item.property("text").isValid() && !item.property("text").toString().isEmpty();
}

QRectF inWindow(const QQuickItem& item) {
  return item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
}

QRectF visiblePart(const QQuickItem& item, QRectF place) {
  for (const QQuickItem* around = &item; around != nullptr; around = around->parentItem()) {
    place = around->clip() ? place & inWindow(*around) : place;
  }
  return place & QRectF(QPointF(0, 0), item.window()->size());
}

QSize neededSize(const QQuickItem& item, const DrawnText& text, const QSizeF& padding) {
  const auto number = [&](const char* property) { return item.property(property).toReal(); };
  const bool isTruncated = item.property("truncated").toBool();
  // For a truncated text, contentWidth is the width of the part that is drawn.
  const qreal width = isTruncated
                          ? std::max(number("contentWidth"), item.implicitWidth() - padding.width())
                          : number("contentWidth");
  const QSize size(int(std::floor(width)), int(std::floor(number("contentHeight"))));
  QSize needed = withoutLeading(size, text.text, QFontMetrics(text.font));
  if (isTruncated && needed.width() <= text.place.width()) {
    needed.setHeight(std::max(needed.height(), text.place.height() + 1));
  }
  return needed;
}

DrawnText textOf(const QQuickItem& item) {
  const auto number = [&](const char* property) { return item.property(property).toReal(); };
  DrawnText text;
  text.owner = &item;
  text.name = nameOf(item);
  text.what = QStringLiteral("text");
  text.text = item.property("text").toString();
  if (item.property("textFormat").toInt() != Qt::PlainText && Qt::mightBeRichText(text.text)) {
    QTextDocument document;
    document.setHtml(text.text);
    text.text = document.toPlainText();
  }
  text.font = item.property("font").value<QFont>();
  const QMarginsF padding(number("leftPadding"), number("topPadding"), number("rightPadding"),
                          number("bottomPadding"));
  const QRectF place = inWindow(item).marginsRemoved(padding);
  text.place = place.toAlignedRect();
  text.visible = visiblePart(item, place).toAlignedRect();
  text.needed = neededSize(item, text, inWindow(item).size() - place.size());
  text.side = Qt::Alignment(item.property("effectiveHorizontalAlignment").toInt());
  return text;
}

class QuickStage final : public Stage {
 public:
  explicit QuickStage(const std::string& file) {
    QQmlComponent component(&engine_, QUrl::fromLocalFile(QString::fromStdString(file)));
    root_.reset(component.isReady() ? component.create() : nullptr);
    if (root_ == nullptr) {
      throw Failure(file +
                    " cannot be loaded: " + component.errors().value(0).toString().toStdString());
    }
    if (window() == nullptr) {
      auto* const item = qobject_cast<QQuickItem*>(root_.get());
      if (item == nullptr) {
        throw Failure(file + " has neither a window nor an item at its top");
      }
      own_ = std::make_unique<QQuickWindow>();
      own_->resize(item->size().toSize());
      item->setParentItem(own_->contentItem());
    }
    window()->show();
    QCoreApplication::processEvents();
  }

  // Destroys the item before the window that shows it.
  ~QuickStage() override { root_.reset(); }

  [[nodiscard]] QList<DrawnText> texts() const override {
    // Rendering a frame updates the items' positions.
    static_cast<void>(picture());
    QList<DrawnText> texts;
    for (QList<QQuickItem*> open = {window()->contentItem()}; !open.isEmpty();) {
      const QQuickItem* const item = open.takeLast();
      if (!item->isVisible()) {
        continue;
      }
      if (drawsText(*item)) {
        texts.append(textOf(*item));
      }
      const QList<QQuickItem*> children = item->childItems();
      open.append(QList<QQuickItem*>(children.rbegin(), children.rend()));
    }
    return texts;
  }

  [[nodiscard]] QImage picture() const override { return window()->grabWindow(); }

 private:
  [[nodiscard]] QQuickWindow* window() const {
    return own_ != nullptr ? own_.get() : qobject_cast<QQuickWindow*>(root_.get());
  }

  QQmlEngine engine_;
  std::unique_ptr<QQuickWindow> own_;
  std::unique_ptr<QObject> root_;
};

}  // namespace

std::unique_ptr<Stage> makeQuickStage(const std::string& file) {
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  return std::make_unique<QuickStage>(file);
}

#else

std::unique_ptr<Stage> makeQuickStage(const std::string& file) {
  throw Failure(file + " cannot be audited: this command was built without Qt Quick");
}

#endif

}  // namespace ovaudit
