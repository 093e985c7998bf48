#include "Audit.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QSet>
#include <algorithm>

#include <ovlocalize/Settings.h>

#include <orvanta/fonts/localizationUtilities.h>
#include <orvanta/orvanta.h>
#include <orvanta/qt/LanguageChangeObserver.h>
#include <orvanta/qt/Text.h>

#include "Findings.h"
#include "Pictures.h"

namespace ovaudit {

using ovlocalize::Failure;

namespace {

// The languages of the catalogue, English first: its sides are those that the form was designed
// with.
QStringList catalogue() {
  QStringList languages;
  auto& cache = orvanta::Localizer::sharedLocalizer().stringCache();
  for (const auto& [identifier, locale] : cache.availableLanguages()) {
    languages << orvanta::qt::toQString(identifier);
  }
  languages.sort();
  if (languages.removeOne(QStringLiteral("en"))) {
    languages.prepend(QStringLiteral("en"));
  }
  return languages;
}

// Lets the event loop run until everybody has heard of the change, and layouts have settled.
void changeLanguage(const QString& language) {
  constexpr int kLongestWait = 10'000;
  bool heard = false;
  const orvanta::qt::LanguageChangeObserver observer([&heard] { heard = true; });
  orvanta::Localizer::sharedLocalizer().updatePreferredLocales({orvanta::qt::fromQString(language)},
                                                               {});
  for (QDeadlineTimer wait(kLongestWait); !heard && !wait.hasExpired();) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, kLongestWait);
  }
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents();
}

bool isIgnored(const Finding& finding, const std::vector<std::string>& ignored) {
  const std::string rule = finding.rule.toStdString();
  const std::string widget = finding.widget.toStdString();
  return std::any_of(ignored.begin(), ignored.end(), [&](const std::string& word) {
    return word == rule || word == widget || word == rule + ':' + widget;
  });
}

bool isAudited(const QString& language, const Request& request) {
  return request.only.empty() || std::find(request.only.begin(), request.only.end(),
                                           language.toStdString()) != request.only.end();
}

class AuditOfStage {
 public:
  AuditOfStage(Stage& stage, const Request& request) : stage_(stage), request_(request) {}

  Report run() {
    const QStringList languages = catalogue();
    if (languages.isEmpty()) {
      throw Failure("no languages in the folder " + request_.bundle);
    }
    for (const std::string& language : request_.only) {
      if (!languages.contains(QString::fromStdString(language))) {
        throw Failure("no table for the language " + language);
      }
    }
    for (const QString& language : languages) {
      if (language == languages.front() || isAudited(language, request_)) {
        audit(language, language == languages.front());
      }
    }
    return report_;
  }

 private:
  void audit(const QString& language, bool isFirst) {
    changeLanguage(language);
    const bool isRightToLeft = orvanta::localizationUtilities::languageAlignmentIsReversed(
        orvanta::Localizer::languageOnlyFromString(orvanta::qt::fromQString(language)));
    QList<Finding> findings;
    QSet<std::pair<const QObject*, QString>> seen;
    for (int view = 0; view < stage_.views(); ++view) {
      stage_.show(view);
      const QList<DrawnText> texts = stage_.texts();
      if (isFirst) {
        sides_.remember(texts, isRightToLeft);
      }
      for (const DrawnText& text : texts) {
        seen.insert({text.owner, text.what});
      }
      if (isAudited(language, request_)) {
        const QList<Finding> ofView = relevant(language, findingsIn(texts, sides_, isRightToLeft));
        savePictureOf(language, view, ofView);
        addNew(ofView, findings);
      }
    }
    report_.languages += isAudited(language, request_) ? 1 : 0;
    report_.texts = std::max(report_.texts, seen.size());
    report_.findings += findings;
  }

  [[nodiscard]] QList<Finding> relevant(const QString& language, QList<Finding> findings) const {
    findings.removeIf([&](const Finding& finding) { return isIgnored(finding, request_.ignored); });
    for (Finding& finding : findings) {
      finding.language = language;
    }
    return findings;
  }

  // What stands beside pages is seen with each of them.
  static void addNew(const QList<Finding>& ofView, QList<Finding>& findings) {
    for (const Finding& finding : ofView) {
      const bool isKnown = std::any_of(findings.begin(), findings.end(), [&](const Finding& other) {
        return other.rule == finding.rule && other.widget == finding.widget &&
               other.message == finding.message && other.frame == finding.frame;
      });
      if (!isKnown) {
        findings.append(finding);
      }
    }
  }

  // The second view's is "de-2.png".
  void savePictureOf(const QString& language, int view, const QList<Finding>& findings) const {
    if (request_.pictures.empty()) {
      return;
    }
    const QString folder = QString::fromStdString(request_.pictures);
    const QString suffix = view == 0 ? QString() : QStringLiteral("-%1").arg(view + 1);
    if (!QDir().mkpath(folder) ||
        !savePicture(stage_.picture(), findings,
                     folder + u'/' + language + suffix + QStringLiteral(".png"))) {
      throw Failure("the pictures cannot be written to " + request_.pictures);
    }
  }

  Stage& stage_;
  const Request& request_;
  Sides sides_;
  Report report_;
};

}  // namespace

Report audit(Stage& stage, const Request& request) {
  return AuditOfStage(stage, request).run();
}

}  // namespace ovaudit
