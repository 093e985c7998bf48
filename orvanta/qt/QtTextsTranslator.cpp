#include <QLibraryInfo>
#include <QReadLocker>
#include <QWriteLocker>
#include <utility>

#include <orvanta/qt/CurrentLocale.h>
#include <orvanta/qt/LanguageChangeEvent.h>
#include <orvanta/qt/QtTextsTranslator.h>

namespace orvanta::qt {

QtTextsTranslator::QtTextsTranslator(QObject* parent)
    : QtTextsTranslator(QLibraryInfo::path(QLibraryInfo::TranslationsPath), parent) {}

QtTextsTranslator::QtTextsTranslator(QString folder, QObject* parent)
    : QTranslator(parent), folder_(std::move(folder)), observer_([this] {
        readTexts();
        postLanguageChange();
      }) {
  readTexts();
}

void QtTextsTranslator::readTexts() {
  auto texts = std::make_unique<QTranslator>();
  if (!texts->load(currentLocale(), QStringLiteral("qtbase"), QStringLiteral("_"), folder_)) {
    texts.reset();
  }
  const QWriteLocker locker(&lock_);
  texts_.swap(texts);
}

QString QtTextsTranslator::translate(const char* context, const char* sourceText,
                                     const char* disambiguation, int n) const {
  const QReadLocker locker(&lock_);
  return texts_ ? texts_->translate(context, sourceText, disambiguation, n) : QString();
}

bool QtTextsTranslator::isEmpty() const {
  return false;
}

}  // namespace orvanta::qt
