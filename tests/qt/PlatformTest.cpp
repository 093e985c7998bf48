#include <QFontInfo>
#include <QPainterPath>
#include <QProcess>
#include <QRawFont>
#include <QResource>
#include <QTest>
#include <atomic>
#include <future>
#include <thread>
#include <vector>

#include <orvanta/fonts/localizationUtilities.h>
#include <orvanta/platform/Platform.h>
#include <orvanta/qt/platform/QtFonts.h>
#include <orvanta/qt/platform/QtPlatform.h>
#include <orvanta/standard/StandardPlatform.h>

#include "Support.h"

namespace {

using namespace Qt::StringLiterals;
using namespace orvanta::platform;
namespace utilities = orvanta::localizationUtilities;

QPainterPath outlineOf(const QFont& font, QChar letter) {
  const QRawFont raw = QRawFont::fromFont(font, QFontDatabase::Arabic);
  return raw.pathForGlyph(raw.glyphIndexesForString(QString(letter)).value(0));
}

}  // namespace

class PlatformTest : public QObject {
  Q_OBJECT

 private slots:
  void runsWhatWasQueuedBeforeTheApplication() { QTRY_VERIFY(orvanta::test::earlyStepRan); }

  void runsAtOnceOnItsOwnThreadAndCarriesFromOthers() {
    orvanta::platform::MainQueue& queue = *Platform::current().mainQueue;
    std::vector<int> order;
    queue.dispatchAsync([&] { order.push_back(2); });
    queue.performOnMainThreadAndWait([&] { order.push_back(1); });
    QCOMPARE(order, std::vector{1});

    bool waited = false;
    std::atomic<bool> ended = false;
    std::thread worker([&] {
      queue.performOnMainThreadAndWait([&] { order.push_back(queue.isMainThread() ? 3 : -3); });
      waited = order.size() == 3;
      ended = true;
    });
    QVERIFY(QTest::qWaitFor([&] { return ended.load(); }));
    worker.join();
    QVERIFY(waited);
    QCOMPARE(order, (std::vector{1, 2, 3}));
  }

  void writesNumbersAsTheLanguageDoes() {
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"en", "-1234567.50", "-1,234,567.50"},
        {"fr", "1234.5", "1\u202F234,5"},
        {"de-AT", "0.25", "0,25"},
        {"ar-EG", "1203", "١٬٢٠٣"},
        {"en", "100000000000000000000000", "100000000000000000000000"},
        {"xx", "1234.50", "1234.50"},
    };
    for (const auto& [locale, plain, written] : rows) {
      QCOMPARE(QString::fromStdString(Platform::current().locales->localizedNumber(plain, locale)),
               QString::fromUtf8(written));
    }
  }

  void hasTwoArabicFacesThatLookDifferent() {
    const auto regular = utilities::ArabicFontWithSize(20, false);
    const auto bold = utilities::ArabicFontWithSize(20, true);
    QVERIFY(regular != nullptr && bold != nullptr);
    QVERIFY(!utilities::ovFontIsBold(regular));
    QVERIFY(utilities::ovFontIsBold(bold));
    QCOMPARE(QFontInfo(orvanta::qt::toQFont(regular)).family(), u"CorbetSansKufiArabic"_s);

    const QChar meem(0x645);
    const QPainterPath regularOutline = outlineOf(orvanta::qt::toQFont(regular), meem);
    const QPainterPath boldOutline = outlineOf(orvanta::qt::toQFont(bold), meem);
    QVERIFY(!regularOutline.isEmpty());
    QVERIFY(regularOutline != boldOutline);
    QVERIFY(regularOutline != outlineOf(QFont(u"DejaVu Sans"_s, 20), meem));

    const std::string path = Platform::current()
                                 .bundles->bundleForLibrary()
                                 ->pathForResource("CorbetSansKufiArabic-Bold", "ttf")
                                 .str();
    const std::string file = orvanta::test::contentsOf(path);
    QVERIFY(!file.empty());
    QVERIFY2(!Platform::current().fonts->registerFontData(std::as_bytes(std::span(file))),
             "registered already");
  }

  void givesFontsTheirTraits() {
    const auto plain = orvanta::qt::fontHandle(QFont(u"DejaVu Sans"_s, 12));
    for (const SymbolicTraits traits : {0U, kBoldTrait, kItalicTrait, kBoldTrait | kItalicTrait}) {
      const auto styled = plain->fontWithSymbolicTraits(traits);
      QCOMPARE(styled->symbolicTraits(), traits);
      QCOMPARE(styled->fontWithSymbolicTraits(0)->symbolicTraits(), 0U);
      const QFont font = orvanta::qt::toQFont(styled);
      QCOMPARE(font.bold(), (traits & kBoldTrait) != 0);
      QCOMPARE(font.italic(), (traits & kItalicTrait) != 0);
    }
    // A font that is not Qt's.
    for (const double weight : {kFontWeightRegular, kFontWeightBold}) {
      const auto other =
          orvanta::standard::makeStandardPlatform().fonts->systemFontOfSize(13, weight);
      const QFont font = orvanta::qt::toQFont(
          other->fontWithSymbolicTraits(other->symbolicTraits() | kItalicTrait));
      QCOMPARE(font.family(), u"System"_s);
      QCOMPARE(font.pointSizeF(), 13.0);
      QCOMPARE(font.bold(), weight == kFontWeightBold);
      QVERIFY(font.italic());
    }
  }

  // Each in a process of its own.
  void servesEveryApplicationOfAProcess() {
    QCOMPARE(QProcess::execute(QCoreApplication::applicationFilePath(), {u"--two-applications"_s}),
             0);
  }
  void warnsOnceWhereNoQtPlatformIsMade() {
    QCOMPARE(QProcess::execute(QCoreApplication::applicationFilePath(), {u"--no-platform"_s}), 0);
  }

  void readsBundlesInResources() {
    orvanta::standard::StandardOptions options;
    options.mainBundlePath = ":/app/";
    const Platform platform = orvanta::qt::makeQtPlatform(options);
    const orvanta::StringList languages = platform.bundles->mainBundle()->localizations();
    QVERIFY(languages == Platform::current().bundles->mainBundle()->localizations());
    for (const orvanta::String& language : languages) {
      const std::string folder = "/" + language.str() + ".lproj";
      const auto shipped = platform.bundles->bundleWithPath("/:/app" + folder);
      const auto onDisk = Platform::current().bundles->bundleWithPath(DEMO_BUNDLE + folder);
      QVERIFY(shipped->laterTexts());
      QCOMPARE(shipped->localizedStringForKey("order.item.tea").str(),
               onDisk->localizedStringForKey("order.item.tea").str());
    }
    QVERIFY(platform.bundles->bundleWithPath("/:/app/xx.lproj") == nullptr);

    FileManager& files = *platform.files;
    const std::string table = "/:/app/fr.lproj/Localizable.strings";
    for (const auto& [path, kind] : {std::pair("/:/app/./fr.lproj//", ItemKind::directory),
                                     {"/:", ItemKind::directory},
                                     {table.c_str(), ItemKind::file},
                                     {"/:/app/../../etc/passwd", ItemKind::missing},
                                     {"/:/\xFF", ItemKind::missing},
                                     {"/:etc", ItemKind::missing},
                                     {"/etc/passwd", ItemKind::file}}) {
      QVERIFY2(files.itemKindAtPath(path) == kind, path);
      QCOMPARE(files.fileExistsAtPath(path), kind != ItemKind::missing);
      QCOMPARE(files.stampOfFileAtPath(path).has_value(), kind == ItemKind::file);
      QCOMPARE(files.openFileForReading(path) != nullptr, kind == ItemKind::file);
    }
    int visited = 0;
    QVERIFY(files
                .enumerateDirectoryAtURL(orvanta::URL::fileURLWithPath("/:/app", true),
                                         [&](const orvanta::URL&, bool) { ++visited; })
                .ok());
    QCOMPARE(visited, static_cast<int>(2 * languages.size()));
    QVERIFY(files.openFolder("/:/app").status.is(std::errc::read_only_file_system));
    QVERIFY(files.removeItemAtURL(orvanta::URL::fileURLWithPath(table, false))
                .is(std::errc::read_only_file_system));
    QVERIFY(files.contentsOfDirectoryAtURL(orvanta::URL::fileURLWithPath("/:/no", true))
                .status.is(std::errc::no_such_file_or_directory));
  }

  void readsResourcesThatComeAndGo() {
    const Platform platform = orvanta::qt::makeQtPlatform({.mainBundlePath = ":/late"});
    BundleRegistry& bundles = *platform.bundles;
    const std::vector keys{orvanta::HashedKey("order.item.tea")};
    std::shared_ptr<Bundle> german;
    Bundle::TextsReader later;
    for (const bool isThere : {true, false, true}) {
      QVERIFY(isThere ? QResource::registerResource(LATE_RESOURCES)
                      : QResource::unregisterResource(LATE_RESOURCES));
      const auto damaged = bundles.bundleWithPath("/:/late/damaged.lproj");
      const auto opened = bundles.bundleWithPath("/:/late/de.lproj");
      QCOMPARE(damaged != nullptr && opened != nullptr, isThere);
      bundles.refreshTables();
      QCOMPARE(bundles.mainBundle()->localizations().size(), isThere ? 2U : 0U);
      if (german == nullptr) {
        german = opened;
        later = german->laterTexts();
      }
      QCOMPARE(std::async(std::launch::async, later, keys).get().front().isPresent(), isThere);
      QCOMPARE(german->localizedStringForKey("order.item.tea").str(),
               isThere ? "Tee" : "order.item.tea");
      QVERIFY(!damaged || damaged->localizedStringForKey("order.item.tea") == "order.item.tea");
      const QResource table(u":/late/de.lproj/Localizable.strings"_s);
      QCOMPARE(table.compressionAlgorithm() != QResource::NoCompression, isThere);
    }
  }

  void knowsFontsByExactNameAlone() {
    orvanta::platform::FontSystem& fonts = *Platform::current().fonts;
    QVERIFY(fonts.fontWithName("DejaVuSans-Bold", 12) != nullptr);
    QCOMPARE(fonts.fontWithName("DejaVuSans-Bold", 12)->pointSize(), 12.0);
    QVERIFY(utilities::ovFontIsBold(fonts.fontWithName("DejaVuSans-Bold", 12)));
    QVERIFY(fonts.fontWithName("DejaVuSans-Nosuch", 12) == nullptr);
    QVERIFY(fonts.fontWithName("Dejavu", 12) == nullptr);
    QVERIFY(fonts.fontWithName({}, 12) == nullptr);
    const std::vector<std::byte> noFont(100);
    QVERIFY(!fonts.registerFontData(noFont));
  }
};

static const orvanta::test::Registration<PlatformTest> registration;

#include "PlatformTest.moc"
