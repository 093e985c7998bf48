#pragma once

#include <QString>

#include <orvanta/text/String.h>

namespace orvanta::qt {

/// Absent and null stand for each other, empty and empty too.
[[nodiscard]] inline QString toQString(const String& text) {
  return text.isAbsent() ? QString()
                         : QString::fromUtf8(text.view().data(), qsizetype(text.size()));
}

/// The other direction of `toQString`.
[[nodiscard]] inline String fromQString(const QString& text) {
  if (text.isNull()) {
    return {};
  }
  const QByteArray utf8 = text.toUtf8();
  return {std::string_view(utf8.constData(), std::size_t(utf8.size()))};
}

/// A text for a place where Qt reads "&" as the mark of a mnemonic: every "&" stands for itself.
[[nodiscard]] inline QString withoutMnemonics(QString text) {
  return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

/// The text that such a one was made from; a "&" that marks a mnemonic stays.
[[nodiscard]] inline QString fromMnemonics(QString text) {
  return text.replace(QLatin1String("&&"), QLatin1String("&"));
}

}  // namespace orvanta::qt
