#include <QPointer>
#include <utility>

#include <orvanta/qt/TextBindings.h>

namespace orvanta::qt {

TextBindings& TextBindings::shared() {
  static auto& bindings = *new TextBindings();
  return bindings;
}

TextBindings::TextBindings() : observer_([this] { applyAll(); }) {}

void TextBindings::bind(QObject* object, const QByteArray& name, Text text, const Set& set) {
  if (!bindings_.contains(object)) {
    connect(object, &QObject::destroyed, this, [this, object] { bindings_.remove(object); });
  }
  if (!name.isEmpty()) {
    unbind(object, name);
  }
  const QString now = text();
  bindings_[object].append({name, std::move(text), set});
  set(now);
}

void TextBindings::unbind(QObject* object, const QByteArray& name) {
  if (const auto bound = bindings_.find(object); bound != bindings_.end()) {
    bound->removeIf([&name](const Binding& binding) { return binding.name == name; });
  }
}

// A setter may bind, unbind and destroy objects, this one too.
void TextBindings::apply(QObject* object) const {
  const QPointer<QObject> alive(object);
  const QList<Binding> bindings = bindings_.value(object);
  for (const Binding& binding : bindings) {
    if (alive != nullptr) {
      binding.set(binding.text());
    }
  }
}

void TextBindings::applyAll() const {
  QList<QPointer<QObject>> objects;
  for (auto bound = bindings_.begin(); bound != bindings_.end(); ++bound) {
    objects.append(bound.key());
  }
  for (const QPointer<QObject>& object : std::as_const(objects)) {
    if (object != nullptr) {
      apply(object);
    }
  }
}

}  // namespace orvanta::qt
