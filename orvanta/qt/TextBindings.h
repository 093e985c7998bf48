#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <functional>

#include <orvanta/qt/LanguageChangeObserver.h>

namespace orvanta::qt {

/// All bindings of the process. On the main thread alone.
class TextBindings : public QObject {
 public:
  using Text = std::function<QString()>;
  using Set = std::function<void(const QString&)>;

  /// Never destroyed.
  static TextBindings& shared();

  /// Sets the text, and again after every change of language for as long as `object` lives. Takes
  /// the place of the object's binding under the same name, unless the name is empty.
  void bind(QObject* object, const QByteArray& name, Text text, const Set& set);
  /// Takes a binding away.
  void unbind(QObject* object, const QByteArray& name);
  /// Sets the bound texts of the object again.
  void apply(QObject* object) const;

 private:
  struct Binding {
    QByteArray name;
    Text text;
    Set set;
  };

  TextBindings();
  void applyAll() const;

  QHash<QObject*, QList<Binding>> bindings_;
  LanguageChangeObserver observer_;
};

}  // namespace orvanta::qt
