// ovaudit: shows a form in every language, without a display, and measures whether its texts fit.
#include <QApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <exception>
#include <iostream>
#include <memory>
#include <optional>

#include <CLI/CLI.hpp>
#include <ovlocalize/Escaping.h>
#include <ovlocalize/Settings.h>

#include <orvanta/fonts/localizationUtilities.h>
#include <orvanta/orvanta.h>
#include <orvanta/qt/LanguageChangeObserver.h>
#include <orvanta/qt/LayoutDirectionFollower.h>
#include <orvanta/qt/Text.h>
#include <orvanta/qt/platform/QtPlatform.h>

#include "Findings.h"
#include "Pictures.h"
#include "Report.h"
#include "Stage.h"

namespace ovaudit {

namespace {

using ovlocalize::Failure;

struct Request {
  std::string form;
  std::string bundle;
  std::string cache;
  std::vector<std::string> only;
  std::vector<std::string> ignored;
  std::string pictures;
  std::string styleSheet;
  std::string font;
  bool isMirrored = false;
  bool asJson = false;
};

void addOptions(CLI::App& app, Request& request) {
  app.add_option("form", request.form, "A form, as Qt Designer saves it, or a QML file")
      ->required()
      ->type_name("FORM.ui|FILE.qml");
  app.add_option("bundle", request.bundle, "The folder that holds the .lproj folders")
      ->required()
      ->type_name("DIR");
  app.add_option("--cache", request.cache, "The caches directory, for downloaded languages")
      ->type_name("DIR");
  app.add_option("--only", request.only, "Audit these languages alone")
      ->delimiter(',')
      ->allow_extra_args(false)
      ->type_name("ID,...");
  app.add_option("--ignore", request.ignored,
                 "Leave findings out: of a rule (cut, glyph, side or overlap), of a widget by its\n"
                 "name, or as RULE:WIDGET of one rule in one widget")
      ->delimiter(',')
      ->allow_extra_args(false)
      ->type_name("RULE|WIDGET,...");
  app.add_option("--pictures", request.pictures,
                 "Leave a picture of each language there, with frames around the findings")
      ->type_name("DIR");
  app.add_option("--style-sheet", request.styleSheet, "The application's style sheet")
      ->type_name("FILE.qss");
  app.add_option("--font", request.font, "The application's font, as QFont::toString writes it")
      ->type_name("\"FAMILY,SIZE\"");
  app.add_flag("--mirrored", request.isMirrored, "Mirror layouts as LayoutDirectionFollower does");
  app.add_flag("--json", request.asJson, "Print JSON");
  app.footer(
      "Examples:\n"
      "  ovaudit demo/window/window.ui demo/bundle\n"
      "  ovaudit --only ar,he --ignore overlap --pictures out form.ui bundle\n"
      "\n"
      "Exit status: 0 without a finding, 1 with one or when the audit could not be made, 2 when "
      "the\n"
      "arguments are wrong.");
}

void applyAppearance(const Request& request) {
  QApplication::setStyle(QStringLiteral("Fusion"));
  if (!request.font.empty()) {
    QFont font;
    if (!font.fromString(QString::fromStdString(request.font))) {
      throw Failure("no font is described by " + request.font);
    }
    QApplication::setFont(font);
  }
  if (!request.styleSheet.empty()) {
    QFile file(QString::fromStdString(request.styleSheet));
    if (!file.open(QIODevice::ReadOnly)) {
      throw Failure("cannot read " + request.styleSheet);
    }
    qApp->setStyleSheet(QString::fromUtf8(file.readAll()));
  }
}

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
  AuditOfStage(const Stage& stage, const Request& request) : stage_(stage), request_(request) {}

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
    const QList<DrawnText> texts = stage_.texts();
    if (isFirst) {
      sides_.remember(texts, isRightToLeft);
    }
    if (!isAudited(language, request_)) {
      return;
    }
    ++report_.languages;
    report_.texts = std::max(report_.texts, texts.size());
    QList<Finding> findings = findingsIn(texts, sides_, isRightToLeft);
    findings.removeIf([&](const Finding& finding) { return isIgnored(finding, request_.ignored); });
    for (Finding& finding : findings) {
      finding.language = language;
    }
    report_.findings += findings;
    if (!request_.pictures.empty()) {
      const QString folder = QString::fromStdString(request_.pictures);
      if (!QDir().mkpath(folder) ||
          !savePicture(stage_.picture(), findings,
                       folder + u'/' + language + QStringLiteral(".png"))) {
        throw Failure("the pictures cannot be written to " + request_.pictures);
      }
    }
  }

  const Stage& stage_;
  const Request& request_;
  Sides sides_;
  Report report_;
};

// What the platform without a display says of itself concerns no form.
void printMessage(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  const bool isOfPlatform = text.startsWith(QLatin1String("This plugin does not support")) ||
                            text.startsWith(QLatin1String("QStandardPaths:"));
  if (!isOfPlatform && type != QtDebugMsg && type != QtInfoMsg) {
    std::cerr << ovlocalize::escaped(qFormatLogMessage(type, context, text).toStdString()) << '\n';
  }
}

int audit(const Request& request, int& argc, char** argv) {
  if (!QDir(QString::fromStdString(request.bundle)).exists()) {
    throw Failure("no such bundle folder: " + request.bundle);
  }
  orvanta::standard::StandardOptions options;
  options.mainBundlePath = request.bundle;
  // The library makes its folder there.
  const QTemporaryDir noCache;
  options.cachesPath = request.cache.empty() ? noCache.path().toStdString() : request.cache;
  orvanta::platform::Platform::install(orvanta::qt::makeQtPlatform(options));
  qInstallMessageHandler(printMessage);
  const QApplication application(argc, argv);
  applyAppearance(request);
  std::optional<orvanta::qt::LayoutDirectionFollower> follower;
  if (request.isMirrored) {
    follower.emplace();
  }
  const std::unique_ptr<Stage> stage =
      request.form.ends_with(".qml") ? makeQuickStage(request.form) : makeFormStage(request.form);
  const Report report = AuditOfStage(*stage, request).run();
  request.asJson ? printForMachines(report) : printForPeople(report);
  if (!std::cout.flush()) {
    throw Failure("the answer could not be written");
  }
  return report.findings.isEmpty() ? 0 : 1;
}

}  // namespace

}  // namespace ovaudit

int main(int argc, char** argv) {
  CLI::App app("Shows a form in every language, without a display, and measures its texts.",
               "ovaudit");
  ovaudit::Request request;
  ovaudit::addOptions(app, request);
  try {
    app.parse(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return ovaudit::audit(request, argc, argv);
  } catch (const CLI::CallForHelp& help) {
    return app.exit(help);
  } catch (const CLI::ParseError& error) {
    std::cerr << "ovaudit: " << ovlocalize::escaped(error.what()) << " (see ovaudit --help)\n";
    return 2;
  } catch (const std::exception& error) {
    std::cerr << "ovaudit: " << ovlocalize::escaped(error.what()) << '\n';
    return 1;
  }
}
