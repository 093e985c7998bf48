#pragma once

#include <QReadWriteLock>
#include <QString>
#include <QTranslator>
#include <functional>
#include <string>

#include <orvanta/messages/TextSnapshot.h>
#include <orvanta/qt/Export.h>
#include <orvanta/qt/LanguageChangeObserver.h>

namespace orvanta::qt {

/// Answers `tr`, `qsTr`, `QCoreApplication::translate` and `qtTrId` from the library:
///
///     orvanta::qt::Translator translator;
///     QCoreApplication::installTranslator(&translator);
///
/// The key is the source text or the identifier, whatever context and disambiguation are. A number
/// (`tr("%n file(s)", nullptr, count)`) makes the text a message with the argument "n", see
/// `localizedMessageForKey`; "%n" stays for Qt to fill in. A key that no language has, English
/// included, is left to the translators that were installed before. Qt's question for the direction
/// of layouts is answered from the current language, so that an application whose direction was not
/// set is mirrored as Qt's own translations mirror it.
///
/// After each change of language it takes the new texts and then posts Qt's `LanguageChange` to the
/// application, once. Until then it gives the old ones.
///
/// Made and destroyed on the main thread; translates on any.
class ORVANTA_QT_EXPORT Translator : public QTranslator {
  Q_OBJECT

 public:
  /// Gives the key of what Qt asks for; the arguments are those of `translate`, of which context
  /// and disambiguation may be null. An empty key leaves the text to other translators. Called on
  /// any thread, on several at once.
  using KeyMapping = std::function<std::string(const char* context, const char* sourceText,
                                               const char* disambiguation)>;

  /// With the source text, or id, as the key.
  explicit Translator(QObject* parent = nullptr);
  /// With another mapping than that of the source text to itself.
  explicit Translator(KeyMapping mapping, QObject* parent = nullptr);

  /// Null where no language has the key.
  [[nodiscard]] QString translate(const char* context, const char* sourceText,
                                  const char* disambiguation = nullptr, int n = -1) const override;
  /// Never: Qt would not install an empty translator.
  [[nodiscard]] bool isEmpty() const override;

 private:
  void takeTexts();
  [[nodiscard]] QString textFor(std::string_view key, int n) const;

  const KeyMapping mapping_;
  mutable QReadWriteLock lock_;  // Of what follows.
  TextSnapshot texts_;
  QString layoutDirection_;
  LanguageChangeObserver observer_;
};

}  // namespace orvanta::qt
