#include "DownloadedLanguages.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <orvanta/orvanta.h>
#include <orvanta/qt/Text.h>

namespace demo {

namespace {

orvanta::StringsPayload payloadFrom(const QJsonValue& json) {
  if (json.isString()) {
    return orvanta::qt::fromQString(json.toString());
  }
  orvanta::StringsPayload payload;
  const QJsonObject object = json.toObject();
  for (auto entry = object.begin(); entry != object.end(); ++entry) {
    payload.add(orvanta::qt::fromQString(entry.key()), payloadFrom(entry.value()));
  }
  return payload;
}

}  // namespace

bool storeDownloadedLanguages(const QString& jsonPath) {
  QFile file(jsonPath);
  if (!file.open(QIODevice::ReadOnly)) {
    return false;
  }
  bool stored = false;
  const QJsonObject tables = QJsonDocument::fromJson(file.readAll()).object();
  orvanta::Localizer::sharedLocalizer().stringCache().updateStrings(
      payloadFrom(tables), "main", "demo", [&stored](const orvanta::StringsUpdate& update) {
        stored = stored || update.result == orvanta::StringsUpdate::Result::written;
      });
  return stored;
}

}  // namespace demo
