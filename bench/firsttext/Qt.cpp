// Arguments: FOLDER LANGUAGE KEY
#include <QString>
#include <QTranslator>

#include "firsttext/Answer.h"

int main(int /*count*/, char** words) {
  QTranslator translator;
  if (!translator.load(QString::fromUtf8(words[1]) + '/' + QString::fromUtf8(words[2]) + ".qm")) {
    return 1;
  }
  orvanta::bench::answer(translator.translate("", words[3]).toStdString());
}
