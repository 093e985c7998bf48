#include <QGlyphRun>
#include <QHash>
#include <QTextLayout>
#include <algorithm>

#include "Findings.h"

namespace ovaudit {

namespace {

// White space, control and format characters are drawn without a glyph.
bool needsGlyph(char32_t character) {
  switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
    case QChar::Separator_Space:
      return false;
    default:
      // A variation selector chooses the glyph of the character before it.
      return !(character >= 0xFE00 && character <= 0xFE0F) &&
             !(character >= 0xE0100 && character <= 0xE01EF);
  }
}

// Whether `font`, or a font that Qt substitutes for it, has a glyph. Index 0 is the glyph that
// fonts draw for a character that they lack.
bool hasGlyph(char32_t character, const QFont& font) {
  QTextLayout layout(QString::fromUcs4(&character, 1), font);
  layout.beginLayout();
  layout.createLine();
  layout.endLayout();
  const QList<QGlyphRun> runs = layout.glyphRuns();
  return std::none_of(runs.begin(), runs.end(),
                      [](const QGlyphRun& run) { return run.glyphIndexes().contains(0); });
}

}  // namespace

QString charactersWithoutGlyph(const QString& text, const QFont& font) {
  static QHash<QString, QHash<char32_t, bool>> known;
  QHash<char32_t, bool>& ofFont = known[font.key()];
  QString missing;
  for (const uint code : text.toUcs4()) {
    const char32_t character = code;
    auto answer = ofFont.find(character);
    if (answer == ofFont.end()) {
      answer = ofFont.insert(character, !needsGlyph(character) || hasGlyph(character, font));
    }
    const QString one = QString::fromUcs4(&character, 1);
    missing += *answer || missing.contains(one) ? QString() : one;
  }
  return missing;
}

}  // namespace ovaudit
