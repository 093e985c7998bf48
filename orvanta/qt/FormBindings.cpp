#include <QComboBox>
#include <QTabWidget>
#include <QToolBox>
#include <QVariant>
#include <algorithm>
#include <utility>

#include <orvanta/qt/FormBindings.h>
#include <orvanta/qt/Localize.h>
#include <orvanta/qt/Messages.h>
#include <orvanta/qt/TextBindings.h>

namespace orvanta::qt {

namespace {

constexpr QByteArrayView kPrefix = "ov";
constexpr auto kItems = "ovItems";
// Marks what is bound already.
constexpr auto kIsBound = "_orvanta_isBound";
// Where an item keeps its key: the item's data in a combo box, a property of the page elsewhere.
constexpr int kKeyRole = Qt::UserRole + 0x6F76;
constexpr auto kItemKey = "_orvanta_itemKey";

bool isKey(const QString& text) {
  return !text.isEmpty() && !localizedText(text).isEmpty() && localizedText(text) != text;
}

// "toolTip" of "ovToolTip"; empty for a name that is no such one.
QByteArray propertyNamed(const QByteArray& dynamicName) {
  const qsizetype prefix = kPrefix.size();
  if (!dynamicName.startsWith(kPrefix) || dynamicName.size() <= prefix || dynamicName == kItems) {
    return {};
  }
  QByteArray name = dynamicName.mid(prefix);
  const bool isWord = name[0] >= 'A' && name[0] <= 'Z';
  name[0] = char(name[0] - 'A' + 'a');
  return isWord ? name : QByteArray();
}

void bindProperties(QObject& object) {
  const QList<QByteArray> names = object.dynamicPropertyNames();
  for (const QByteArray& name : names) {
    const QByteArray property = propertyNamed(name);
    const QString key = object.property(name.constData()).toString();
    if (property.isEmpty() || !isKey(key)) {
      continue;
    }
    if (!localize(&object, property.constData(), key)) {
      qWarning("%s of %s names no text property.", name.constData(),
               qPrintable(object.objectName()));
    }
  }
}

void translateItems(QComboBox& box) {
  for (int at = 0; at < box.count(); ++at) {
    const QString key = box.itemData(at, kKeyRole).toString();
    if (!key.isEmpty()) {
      box.setItemText(at, localizedText(key));
    }
  }
}

void takeItemKeys(QComboBox& box) {
  for (int at = 0; at < box.count(); ++at) {
    if (isKey(box.itemText(at))) {
      box.setItemData(at, box.itemText(at), kKeyRole);
    }
  }
}

// QTabWidget and QToolBox differ in the names of two operations.
template <typename Pages>
void translatePages(Pages& pages, void (Pages::*setText)(int, const QString&)) {
  for (int at = 0; at < pages.count(); ++at) {
    const QString key = pages.widget(at)->property(kItemKey).toString();
    if (!key.isEmpty()) {
      (pages.*setText)(at, localizedText(key));
    }
  }
}

template <typename Pages>
void takePageKeys(const Pages& pages, QString (Pages::*text)(int) const) {
  for (int at = 0; at < pages.count(); ++at) {
    if (const QString key = (pages.*text)(at); isKey(key)) {
      pages.widget(at)->setProperty(kItemKey, key);
    }
  }
}

void bindItems(QObject& object) {
  TextBindings::Set translate;
  if (auto* box = qobject_cast<QComboBox*>(&object)) {
    takeItemKeys(*box);
    translate = [box](const QString&) { translateItems(*box); };
  } else if (auto* tabs = qobject_cast<QTabWidget*>(&object)) {
    takePageKeys(*tabs, &QTabWidget::tabText);
    translate = [tabs](const QString&) { translatePages(*tabs, &QTabWidget::setTabText); };
  } else if (auto* toolBox = qobject_cast<QToolBox*>(&object)) {
    takePageKeys(*toolBox, &QToolBox::itemText);
    translate = [toolBox](const QString&) { translatePages(*toolBox, &QToolBox::setItemText); };
  }
  if (translate) {
    TextBindings::shared().bind(
        &object, kItems, [] { return QString(); }, translate);
  }
}

void bindObject(QObject& object) {
  if (object.property(kIsBound).toBool()) {
    TextBindings::shared().apply(&object);
    return;
  }
  bindProperties(object);
  if (object.property(kItems).toBool()) {
    bindItems(object);
  }
  object.setProperty(kIsBound, true);
}

bool hasBindings(const QObject& object) {
  const QList<QByteArray> names = object.dynamicPropertyNames();
  return std::any_of(names.begin(), names.end(), [](const QByteArray& name) {
    return name == kItems || !propertyNamed(name).isEmpty();
  });
}

}  // namespace

void bindForm(QWidget& root) {
  QList<QObject*> objects = root.findChildren<QObject*>();
  objects.prepend(&root);
  for (QObject* object : std::as_const(objects)) {
    if (hasBindings(*object)) {
      bindObject(*object);
    }
  }
}

}  // namespace orvanta::qt
