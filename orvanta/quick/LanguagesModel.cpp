#include <QLocale>
#include <algorithm>
#include <utility>

#include <orvanta/locale/Localizer.h>
#include <orvanta/qt/Text.h>
#include <orvanta/quick/LanguagesModel.h>

namespace orvanta::quick {

namespace {

QString ownName(const QString& identifier) {
  const QLocale locale(identifier);
  const QString name = locale.language() == QLocale::C ? QString() : locale.nativeLanguageName();
  return name.isEmpty() ? identifier : name;
}

}  // namespace

LanguagesModel::LanguagesModel(QObject* parent)
    : QAbstractListModel(parent), languages_(availableLanguages()) {}

int LanguagesModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(languages_.size());
}

QVariant LanguagesModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid)) {
    return {};
  }
  const Language& language = languages_.at(index.row());
  switch (role) {
    case identifier:
      return language.identifier;
    case Qt::DisplayRole:
    case name:
      return ownName(language.identifier);
    case downloaded:
      return language.downloaded;
    default:
      return {};
  }
}

QHash<int, QByteArray> LanguagesModel::roleNames() const {
  return {{identifier, "identifier"}, {name, "name"}, {downloaded, "downloaded"}};
}

void LanguagesModel::refresh() {
  QList<Language> now = availableLanguages();
  if (now != languages_) {
    beginResetModel();
    languages_ = std::move(now);
    endResetModel();
  }
}

QList<LanguagesModel::Language> LanguagesModel::availableLanguages() {
  OVStringCache& cache = Localizer::sharedLocalizer().stringCache();
  const OVLocaleDictionary cached = cache.cachedLanguages();
  QList<Language> languages;
  for (const auto& [key, language] : cache.availableLanguages()) {
    languages.append({qt::toQString(key), cached.contains(key)});
  }
  std::sort(languages.begin(), languages.end(), [](const Language& one, const Language& other) {
    return one.identifier < other.identifier;
  });
  return languages;
}

}  // namespace orvanta::quick
