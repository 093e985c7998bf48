// ovaudit: shows a form in every language, without a display, and measures whether its texts fit.
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <exception>
#include <iostream>
#include <memory>
#include <optional>
#include <string>

#include <CLI/CLI.hpp>
#include <ovlocalize/Escaping.h>
#include <ovlocalize/Pages.h>
#include <ovlocalize/Settings.h>

#include <orvanta/qt/LayoutDirectionFollower.h>
#include <orvanta/qt/platform/QtPlatform.h>

#include "Audit.h"
#include "Report.h"
#include "Stage.h"

namespace ovaudit {

namespace {

using ovlocalize::Failure;

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
  ovlocalize::addVersionAndPages(app, "find texts of a form that do not fit in a language");
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

// What the platform without a display says of itself concerns no form, and why a form cannot be
// loaded is told by whoever loads it.
void printMessage(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  const bool isKnown = text.startsWith(QLatin1String("This plugin does not support")) ||
                       text.startsWith(QLatin1String("QStandardPaths:")) ||
                       text.startsWith(QLatin1String("Designer:"));
  if (!isKnown && type != QtDebugMsg && type != QtInfoMsg) {
    std::cerr << ovlocalize::escaped(qFormatLogMessage(type, context, text).toStdString()) << '\n';
  }
}

int run(const Request& request, int& argc, char** argv) {
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
  const Report report = audit(*stage, request);
  request.asJson ? printForMachines(report) : printForPeople(report);
  if (!std::cout.flush()) {
    throw Failure("the answer could not be written");
  }
  return report.findings.isEmpty() ? 0 : 1;
}

int parseAndRun(int& argc, char** argv) {
  CLI::App app("Shows a form in every language, without a display, and measures its texts.",
               "ovaudit");
  Request request;
  addOptions(app, request);
  try {
    app.parse(argc, argv);
  } catch (const CLI::Success& answer) {
    return app.exit(answer);
  } catch (const CLI::ParseError& error) {
    std::cerr << "ovaudit: " << ovlocalize::escaped(error.what()) << " (see ovaudit --help)\n";
    return 2;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  return run(request, argc, argv);
}

}  // namespace

}  // namespace ovaudit

int main(int argc, char** argv) {
  try {
    return ovaudit::parseAndRun(argc, argv);
  } catch (const std::exception& error) {
    std::cerr << "ovaudit: " << ovlocalize::escaped(error.what()) << '\n';
    return 1;
  }
}
