#pragma once

#include <QHash>
#include <QList>
#include <QRect>
#include <QString>

#include "DrawnTexts.h"

namespace ovaudit {

/// The rules, by the names that --ignore takes.
inline constexpr const char* kCut = "cut";
inline constexpr const char* kGlyph = "glyph";
inline constexpr const char* kSide = "side";
inline constexpr const char* kOverlap = "overlap";

/// One thing that is wrong in one language.
struct Finding {
  QString language;
  QString rule;
  QString widget;  ///< Or item.
  QString message;
  QRect frame;  ///< In the window; empty for a text that is not drawn.
};

/// At which side texts stand: whether at that where the language's lines begin.
class Sides {
 public:
  /// Remembers the sides in the language that the form was designed in.
  void remember(const QList<DrawnText>& texts, bool isRightToLeft);

  /// Whether the text stands where it stood, seen in the direction of reading. True for a text that
  /// was not there.
  [[nodiscard]] bool isKept(const DrawnText& text, bool isRightToLeft) const;

 private:
  QHash<std::pair<const QObject*, QString>, int> sides_;
};

/// What is wrong with the texts of a window in one language.
[[nodiscard]] QList<Finding> findingsIn(const QList<DrawnText>& texts, const Sides& sides,
                                        bool isRightToLeft);

/// The characters of the text, each once, for which no font that Qt would take has a glyph.
[[nodiscard]] QString charactersWithoutGlyph(const QString& text, const QFont& font);

}  // namespace ovaudit
