#pragma once

#include <QAbstractListModel>
#include <QList>
#include <QString>

namespace orvanta::quick {

/// The available languages, ordered by identifier. On the main thread alone.
class LanguagesModel : public QAbstractListModel {
  Q_OBJECT

 public:
  enum Role {
    /// What `setLanguage` takes.
    identifier = Qt::UserRole,
    /// The language's name in itself; the identifier where Qt does not know the language.
    name,
    /// Whether its texts were downloaded; else they are shipped.
    downloaded,
  };

  explicit LanguagesModel(QObject* parent);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  /// Reads the catalogue. Resets the model only if the languages are others.
  void refresh();

 private:
  struct Language {
    QString identifier;
    bool downloaded;
    bool operator==(const Language& other) const = default;
  };
  [[nodiscard]] static QList<Language> availableLanguages();

  QList<Language> languages_;
};

}  // namespace orvanta::quick
