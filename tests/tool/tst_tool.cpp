#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace {
const QString good = QStringLiteral(PV_TESTDATA "/good");
const QString broken = QStringLiteral(PV_TESTDATA "/broken");

struct Run {
    int exitCode = -1;
    QString out;
    QString err;
};

// An empty working directory: no fixture lies below it, wherever the checkout is, so the tool
// names fixture files by absolute paths.
QString outsideFixtures()
{
    static const QTemporaryDir dir;
    return dir.path();
}

Run pvproducts(const QStringList& arguments)
{
    QProcess process;
    process.setWorkingDirectory(outsideFixtures());
    process.start(QStringLiteral(PV_TOOL), arguments);
    if (!process.waitForFinished(60000))
        return {};
    return { process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
             QString::fromUtf8(process.readAllStandardOutput()), QString::fromUtf8(process.readAllStandardError()) };
}

QStringList args(const char* text)
{
    return QString::fromUtf8(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}
}

class TestTool : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void commands_data();
    void commands();
    void listJson();
    void lintFindings_data();
    void lintFindings();
    void sampleCatalogue();
    void showJsonMatchesList();
    void listVerbose();
    void libraryWarningsNameTheirFile();
    void showListsWhatTheFileHolds_data();
    void showListsWhatTheFileHolds();
};

void TestTool::commands_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QStringList>("expectedLines");

    const QStringList data { QStringLiteral("--data"), good };
    QTest::newRow("list sorted, update wins") << data + args("list") << 0
        << QStringList { QStringLiteral("test-book          photobook  hardcover  yes    4"),
                         QStringLiteral("test-calendar      calendar   spiral     yes    2") };
    QTest::newRow("show pages") << data + args("show test-book --pages 4") << 0
        << QStringList { QStringLiteral("0      cover_back   left       0       no"),
                         QStringLiteral("1      spine        center     0       no"),
                         QStringLiteral("3      page         right      1       yes"),
                         QStringLiteral("5      page         right      3       no") };
    QTest::newRow("unknown type") << data + args("show no-such-product") << 1 << QStringList();
    QTest::newRow("find by class") << data + args("find --class poster") << 0
        << QStringList { QStringLiteral("test-poster"), QStringLiteral("test-poster-large") };
    QTest::newRow("find without filter lists every product") << data + args("find") << 0
        << QStringList { QStringLiteral("test-book"), QStringLiteral("test-calendar"), QStringLiteral("test-poster"), QStringLiteral("test-poster-large") };
    QTest::newRow("groups by size") << data + args("groups") << 0
        << QStringList { QStringLiteral("Poster (Poster)"), QStringLiteral("  40x50  16x20  test-poster"), QStringLiteral("  60x80  24x32  test-poster-large") };
    QTest::newRow("closest") << data + args("closest test-book Poster") << 0 << QStringList { QStringLiteral("test-poster") };
    QTest::newRow("legacy") << data + args("legacy") << 0
        << QStringList { QStringLiteral("test-old-book  test-book    RewriteOneToTwoPages") };
    QTest::newRow("unknown command") << data + args("frobnicate") << 2 << QStringList();
    QTest::newRow("bad page count") << data + args("show test-book --pages many") << 2 << QStringList();
    QTest::newRow("unknown class") << data + args("find --class vase") << 2 << QStringList();
    QTest::newRow("missing data dir") << args("--data /no/such/dir list") << 2 << QStringList();
    QTest::newRow("spiral without out") << data + args("spiral test-calendar") << 2 << QStringList();
    QTest::newRow("draw without out") << data + args("draw test-book") << 2 << QStringList();
    QTest::newRow("draw to another format") << data + args("draw test-book --out book.gif") << 2 << QStringList();
    QTest::newRow("draw too many pages") << data + args("draw test-book --pages 1001 --out book.png") << 2 << QStringList();
    QTest::newRow("draw an unknown type") << data + args("draw no-such-product --out book.png") << 1 << QStringList();
    QTest::newRow("help of a command") << args("show --help") << 0 << QStringList();
    QTest::newRow("show a retired product") << data + args("show test-old-book") << 0
        << QStringList { QStringLiteral("legacy: yes"), QStringLiteral("replacedBy: test-book"), QStringLiteral("conversionStrategy: RewriteOneToTwoPages") };
    QTest::newRow("show names the file that won") << data + args("show test-poster") << 0
        << QStringList { QStringLiteral("file: ") + good + QStringLiteral("/products-updates/poster.xml"),
                         QStringLiteral("replaces: ") + good + QStringLiteral("/products/poster.xml"), QStringLiteral("legacy: no") };
    QTest::newRow("legacy of a product in use") << data + args("legacy test-book") << 1 << QStringList();
    QTest::newRow("lint help shows its options") << args("lint --help") << 0
        << QStringList { QStringLiteral("  --strict             Warnings fail the run too.") };
}

void TestTool::commands()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, exitCode);
    QFETCH(QStringList, expectedLines);

    const Run run = pvproducts(arguments);
    QCOMPARE(run.exitCode, exitCode);
    const QStringList lines = run.out.split(QLatin1Char('\n'));
    for (const QString& line : expectedLines) {
        if (!lines.contains(line))
            QFAIL(qPrintable(QStringLiteral("missing line \"%1\" in:\n%2").arg(line, run.out)));
    }
    if (exitCode != 0)
        QVERIFY(run.err.startsWith(QLatin1String("pvproducts: ")));
}

void TestTool::listJson()
{
    const Run run = pvproducts({ QStringLiteral("--data"), good, QStringLiteral("list"), QStringLiteral("--json") });
    QCOMPARE(run.exitCode, 0);
    const QJsonArray products = QJsonDocument::fromJson(run.out.toUtf8()).array();
    QCOMPARE(products.size(), 4);
    QCOMPARE(products.at(2).toObject().value(QStringLiteral("name")).toString(), QStringLiteral("test-poster"));
    QCOMPARE(products.at(2).toObject().value(QStringLiteral("valid")).toBool(), true);

    const Run show = pvproducts({ QStringLiteral("--data"), good, QStringLiteral("show"), QStringLiteral("test-poster"), QStringLiteral("--json") });
    const QJsonObject classification = QJsonDocument::fromJson(show.out.toUtf8()).object().value(QStringLiteral("classification")).toObject();
    QCOMPARE(classification.value(QStringLiteral("cm")).toString(), QStringLiteral("40x50"));
}

void TestTool::lintFindings_data()
{
    QTest::addColumn<QString>("finding");
    QTest::newRow("not well-formed") << "products/a-not-xml.xml:3:1: error: not well-formed XML";
    QTest::newRow("no product") << "products/b-no-product.xml:1:1: error: no \"product\" element";
    QTest::newRow("unknown class") << "products/c-typos.xml:3:25: error: attribute \"class\": unknown article class \"photobok\"";
    QTest::newRow("invalid and why") << "products/c-typos.xml:3:3: error: product \"typos\" is not valid";
    QTest::newRow("bool") << "products/c-typos.xml:3:62: error: attribute \"horizontalPages\": \"maybe\" is not true or false";
    QTest::newRow("int") << "products/c-typos.xml:3:86: error: attribute \"foldsafetymargin\": \"wide\" is not a whole number";
    QTest::newRow("unknown attribute") << "products/c-typos.xml:3:110: error: unknown attribute \"colour\"";
    QTest::newRow("page name") << "products/c-typos.xml:4:5: error: the text of \"pages\": unknown page type \"spinee\"";
    QTest::newRow("empty page") << "products/c-typos.xml:4:5: error: the text of \"pages\": an empty entry";
    QTest::newRow("number list") << "products/c-typos.xml:5:5: error: the text of \"productionnumbering\": \"x\" is not a whole number";
    QTest::newRow("huge range") << "products/c-typos.xml:7:24: error: attribute \"from\": \"1-10000000\" spans more than 100000 pages";
    QTest::newRow("missing to") << "products/c-typos.xml:8:7: error: \"contentredirect\" has no attribute \"to\"";
    QTest::newRow("unknown element") << "products/c-typos.xml:10:5: error: unknown element \"editorAbilites\"";
    QTest::newRow("naming style") << "products/c-typos.xml:12:7: error: the text of \"pageNamingStyle\": unknown page naming style \"bok\"";
    QTest::newRow("jig tag") << "products/c-typos.xml:13:13: error: unknown jig type \"backdrop\"";
    QTest::newRow("mesh") << "products/c-typos.xml:15:16: error: a mesh needs at least one \"textureTarget\"";
    QTest::newRow("duplicate") << "products/e-dup.xml:1:1: error: product type \"dup\" is defined again in this directory";
    QTest::newRow("replacedBy") << "legacy/old.xml:1:61: error: \"replacedBy\" names no known product: \"nowhere\"";
}

void TestTool::lintFindings()
{
    QFETCH(QString, finding);
    const Run run = pvproducts({ QStringLiteral("lint"), QStringLiteral("--data"), broken });
    QCOMPARE(run.exitCode, 1);
    const QStringList lines = run.out.split(QLatin1Char('\n'));
    const bool found = std::any_of(lines.cbegin(), lines.cend(), [&](const QString& line) { return line.contains(finding); });
    if (!found)
        QFAIL(qPrintable(QStringLiteral("no finding \"%1\" in:\n%2").arg(finding, run.out)));
}

void TestTool::sampleCatalogue()
{
    // The bundled catalogue is the default data and must stay free of errors.
    const Run lint = pvproducts({ QStringLiteral("lint"), QStringLiteral("--json") });
    QCOMPARE(lint.exitCode, 0);
    const QJsonObject report = QJsonDocument::fromJson(lint.out.toUtf8()).object();
    QCOMPARE(report.value(QStringLiteral("errors")).toInt(), 0);
    QVERIFY(report.value(QStringLiteral("files")).toInt() >= 25);

    QTemporaryDir dir;
    const QString png = dir.filePath(QStringLiteral("strip.png"));
    const Run spiral = pvproducts({ QStringLiteral("spiral"), QStringLiteral("calendar-wall-a3-portrait"), QStringLiteral("--vertical"), QStringLiteral("--out"), png });
    QCOMPARE(spiral.exitCode, 0);
    const QImage strip(png);
    QVERIFY(!strip.isNull());
    QVERIFY(strip.height() > strip.width());

    for (const QString& name : { QStringLiteral("calendar.png"), QStringLiteral("calendar.svg") }) {
        const Run draw = pvproducts({ QStringLiteral("draw"), QStringLiteral("calendar-wall-a3-portrait"), QStringLiteral("--pages"), QStringLiteral("4"),
                                      QStringLiteral("--out"), dir.filePath(name) });
        QCOMPARE(draw.exitCode, 0);
        QCOMPARE(draw.err, QString());
    }
    QVERIFY(!QImage(dir.filePath(QStringLiteral("calendar.png"))).isNull());
    QFile svg(dir.filePath(QStringLiteral("calendar.svg")));
    QVERIFY(svg.open(QIODevice::ReadOnly));
    QVERIFY(svg.readAll().contains("<svg"));

    const Run category = pvproducts({ QStringLiteral("--language"), QStringLiteral("en_GB"), QStringLiteral("category"), QStringLiteral("Hintergründe") });
    QCOMPARE(category.exitCode, 0);
    QVERIFY2(category.out.contains(QLatin1String("Backgrounds")), qPrintable(category.out));
}

void TestTool::showJsonMatchesList()
{
    const Run list = pvproducts({ QStringLiteral("--data"), good, QStringLiteral("list"), QStringLiteral("--json") });
    for (const QJsonValue& value : QJsonDocument::fromJson(list.out.toUtf8()).array()) {
        const QJsonObject row = value.toObject();
        const Run show = pvproducts({ QStringLiteral("--data"), good, QStringLiteral("show"), row.value(QStringLiteral("name")).toString(), QStringLiteral("--json") });
        const QJsonObject shown = QJsonDocument::fromJson(show.out.toUtf8()).object();
        for (auto it = row.constBegin(); it != row.constEnd(); ++it) {
            QVERIFY2(shown.contains(it.key()), qPrintable(it.key()));
            QCOMPARE(shown.value(it.key()).type(), it.value().type());
            QCOMPARE(shown.value(it.key()), it.value());
        }
    }
}

void TestTool::listVerbose()
{
    const Run run = pvproducts({ QStringLiteral("--data"), good, QStringLiteral("list"), QStringLiteral("--verbose"), QStringLiteral("--json") });
    QCOMPARE(run.exitCode, 0);
    const QJsonArray rows = QJsonDocument::fromJson(run.out.toUtf8()).array();
    const auto poster = std::find_if(rows.cbegin(), rows.cend(), [](const QJsonValue& v) { return v.toObject().value(QStringLiteral("name")) == QLatin1String("test-poster"); });
    QVERIFY(poster != rows.cend());
    QCOMPARE(poster->toObject().value(QStringLiteral("file")).toString(), good + QStringLiteral("/products-updates/poster.xml"));
    QCOMPARE(poster->toObject().value(QStringLiteral("replaces")).toArray(), QJsonArray::fromStringList({ good + QStringLiteral("/products/poster.xml") }));
}

void TestTool::libraryWarningsNameTheirFile()
{
    QTemporaryDir root;
    QVERIFY(QDir(root.path()).mkpath(QStringLiteral("products")));
    QFile file(root.filePath(QStringLiteral("products/redirect.xml")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<products><product name=\"r\" class=\"poster\" binding=\"wall\"><pages>page</pages>"
               "<contentredirects><contentredirect from=\"1\" to=\"-1\"/></contentredirects></product></products>");
    file.close();
    const Run run = pvproducts({ QStringLiteral("--data"), root.path(), QStringLiteral("list") });
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(run.err.contains(QStringLiteral("/products/redirect.xml: parse error")), qPrintable(run.err));
}

void TestTool::showListsWhatTheFileHolds_data()
{
    // Where a value lies in show's JSON: a top-level array, the index of an object in it, and a key.
    QTest::addColumn<QString>("array");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("expected");
    QTest::newRow("single redirect") << "contentRedirects" << 0 << "from" << QJsonValue(QStringLiteral("3"));
    QTest::newRow("single redirect target") << "contentRedirects" << 0 << "to" << QJsonValue(1);
    QTest::newRow("redirect beyond page 999") << "contentRedirects" << 1 << "from" << QJsonValue(QStringLiteral("1000-1500"));
    QTest::newRow("wide redirect target") << "contentRedirects" << 1 << "to" << QJsonValue(2);
    QTest::newRow("general template") << "defaultTemplates" << 0 << "layout" << QJsonValue(QStringLiteral("general"));
    QTest::newRow("scene page count keyed") << "defaultTemplates" << 2 << "scenePageCount" << QJsonValue(2);
    QTest::newRow("scene page count layout") << "defaultTemplates" << 2 << "layout" << QJsonValue(QStringLiteral("spread"));
    QTest::newRow("page number keyed") << "defaultTemplates" << 1 << "pageNr" << QJsonValue(1200);
    QTest::newRow("page number design") << "defaultTemplates" << 1 << "design" << QJsonValue(QStringLiteral("far"));
    QTest::newRow("page number background") << "defaultTemplates" << 1 << "background" << QJsonValue(QStringLiteral("201"));
}

void TestTool::showListsWhatTheFileHolds()
{
    QFETCH(QString, array);
    QFETCH(int, index);
    QFETCH(QString, key);
    QFETCH(QJsonValue, expected);

    QTemporaryDir root;
    QVERIFY(QDir(root.path()).mkpath(QStringLiteral("products")));
    QFile file(root.filePath(QStringLiteral("products/holds.xml")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<products><product name=\"h\" class=\"calendar\" binding=\"spiral\"><pages>page</pages>"
               "<contentredirects><contentredirect from=\"1000-1500\" to=\"2\"/><contentredirect from=\"3\" to=\"1\"/></contentredirects>"
               "<surroundings><surrounding type=\"CALENDAR\" pageType=\"page\" alignment=\"left\"><spirals count=\"3\" variant=\"s.png\">"
               "<loopImages><loopImage variant=\"gold\" imagePath=\"g.png\"/><loopImage variant=\"black\" imagePath=\"b.png\"/></loopImages>"
               "</spirals></surrounding></surroundings>"
               "<defaults><default pageType=\"page\" alignment=\"left\" layout=\"general\"/>"
               "<default pageType=\"page\" alignment=\"left\" scenePageCount=\"2\" layout=\"spread\"/>"
               "<default pageType=\"page\" alignment=\"left\" pageNr=\"1200\" design=\"far\"/></defaults></product></products>");
    file.close();

    const Run json = pvproducts({ QStringLiteral("--data"), root.path(), QStringLiteral("show"), QStringLiteral("h"), QStringLiteral("--json") });
    QCOMPARE(json.exitCode, 0);
    const QJsonObject shown = QJsonDocument::fromJson(json.out.toUtf8()).object();
    const QJsonArray list = shown.value(array).toArray();
    QVERIFY2(index < list.size(), qPrintable(json.out));
    QCOMPARE(list.at(index).toObject().value(key), expected);
    const QJsonObject pictures = shown.value(QStringLiteral("surroundings")).toArray().at(0).toObject().value(QStringLiteral("spiral")).toObject().value(QStringLiteral("loopPictures")).toObject();
    QCOMPARE(pictures, (QJsonObject { { QStringLiteral("gold"), QStringLiteral("g.png") }, { QStringLiteral("black"), QStringLiteral("b.png") } }));

    // The text form prints the same values.
    const Run text = pvproducts({ QStringLiteral("--data"), root.path(), QStringLiteral("show"), QStringLiteral("h") });
    QCOMPARE(text.exitCode, 0);
    const QString value = expected.isString() ? expected.toString() : QString::number(expected.toInt());
    const QString line = QStringLiteral("    %1: %2").arg(key, value);
    QVERIFY2(text.out.split(QLatin1Char('\n')).contains(line), qPrintable(line + QStringLiteral(" missing in:\n") + text.out));
    QVERIFY(text.out.contains(QLatin1String("        gold: g.png")));
}

QTEST_GUILESS_MAIN(TestTool)
#include "tst_tool.moc"
