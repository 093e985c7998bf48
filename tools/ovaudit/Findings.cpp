#include "Findings.h"

namespace ovaudit {

namespace {

QString quoted(const QString& text) {
  constexpr int kLongest = 40;
  return u'"' + (text.size() > kLongest ? text.left(kLongest - 1) + QChar(0x2026) : text) + u'"';
}

// -1 at the beginning of the lines, 1 at their end, 0 in the middle.
int sideOf(const DrawnText& text, bool isRightToLeft) {
  const bool isLeft = text.side.testFlag(Qt::AlignLeft);
  if (!isLeft && !text.side.testFlag(Qt::AlignRight)) {
    return 0;
  }
  return isLeft != isRightToLeft ? -1 : 1;
}

QString pixels(const QSize& size) {
  return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

class Audit {
 public:
  Audit(const Sides& sides, bool isRightToLeft) : sides_(sides), isRightToLeft_(isRightToLeft) {}

  void check(const DrawnText& text) {
    const QString missing = charactersWithoutGlyph(text.text, text.font);
    if (!missing.isEmpty()) {
      QStringList codes;
      for (const uint code : missing.toUcs4()) {
        codes << QStringLiteral("U+%1").arg(code, 4, 16, QLatin1Char('0')).toUpper();
      }
      add(kGlyph, text, text.what + QStringLiteral(" has no glyph for ") + codes.join(u' '));
    }
    if (!text.isDrawn) {
      return;
    }
    checkRoom(text);
    if (!sides_.isKept(text, isRightToLeft_)) {
      const bool isLeft = text.side.testFlag(Qt::AlignLeft);
      add(kSide, text,
          text.what + QStringLiteral(" stands at the ") +
              (isLeft ? QStringLiteral("left") : QStringLiteral("right")) +
              QStringLiteral(", where in this language its lines ") +
              (isLeft != isRightToLeft_ ? QStringLiteral("begin") : QStringLiteral("end")));
    }
  }

  // Texts in one widget share its place by design.
  void checkPair(const DrawnText& text, const DrawnText& other) {
    const QRect common = text.rect() & other.rect();
    if (text.isDrawn && other.isDrawn && text.owner != other.owner && !common.isEmpty()) {
      add(kOverlap, text,
          text.what + QStringLiteral(" overlaps that of ") + other.name + u' ' +
              quoted(other.text));
    }
  }

  QList<Finding> findings;

 private:
  void checkRoom(const DrawnText& text) {
    if (text.needed.width() > text.place.width() || text.needed.height() > text.place.height()) {
      add(kCut, text,
          text.what + u' ' + quoted(text.text) + QStringLiteral(" needs ") + pixels(text.needed) +
              QStringLiteral(" and has ") + pixels(text.place.size()));
    } else if (!text.visible.contains(text.rect())) {
      add(kCut, text,
          text.what + u' ' + quoted(text.text) + QStringLiteral(" reaches out of its parent"));
    }
  }

  void add(const char* rule, const DrawnText& text, const QString& message) {
    findings.append(
        {{}, QLatin1String(rule), text.name, message, text.isDrawn ? text.place : QRect()});
  }

  const Sides& sides_;
  bool isRightToLeft_;
};

}  // namespace

void Sides::remember(const QList<DrawnText>& texts, bool isRightToLeft) {
  for (const DrawnText& text : texts) {
    if (text.isDrawn) {
      sides_.insert({text.owner, text.what}, sideOf(text, isRightToLeft));
    }
  }
}

bool Sides::isKept(const DrawnText& text, bool isRightToLeft) const {
  const auto designed = sides_.find({text.owner, text.what});
  return designed == sides_.end() || *designed == sideOf(text, isRightToLeft);
}

QList<Finding> findingsIn(const QList<DrawnText>& texts, const Sides& sides, bool isRightToLeft) {
  Audit audit(sides, isRightToLeft);
  for (qsizetype index = 0; index < texts.size(); ++index) {
    audit.check(texts[index]);
    for (qsizetype other = index + 1; other < texts.size(); ++other) {
      audit.checkPair(texts[index], texts[other]);
    }
  }
  return audit.findings;
}

}  // namespace ovaudit
