#include "PvContentDropRedirectList.h"
#include "PvDefaultTemplateMap.h"
#include "PvDirectoryConfig.h"
#include "PvJigType.h"
#include "PvProductTypeDescription.h"
#include "PvSpiralConfig.h"
#include "PvXMLLoader.h"

#include <QDirIterator>
#include <QDomDocument>
#include <QElapsedTimer>
#include <QFile>
#include <QMap>
#include <QTemporaryDir>
#include <QTest>

#include <climits>
#include <functional>
#include <memory>

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define PV_HEAP_FROM_ASAN
#endif
#endif
#if defined(__SANITIZE_ADDRESS__)
#define PV_HEAP_FROM_ASAN
#endif

#ifdef PV_HEAP_FROM_ASAN
// From the sanitizer's runtime (GCC's and clang's alike; not every compiler ships the header).
extern "C" size_t __sanitizer_get_current_allocated_bytes();
#else
#include <malloc.h>
#endif

namespace {
constexpr int maximumPages = 10000;
constexpr qint64 megabyte = 1024 * 1024;

// Heap bytes in use. The sanitizer's allocator replaces malloc's, so it is asked instead.
qint64 heapInUse()
{
#ifdef PV_HEAP_FROM_ASAN
    return qint64(__sanitizer_get_current_allocated_bytes());
#else
    const struct mallinfo2 info = mallinfo2();
    return qint64(info.uordblks + info.hblkhd);
#endif
}

QStringList texts(std::initializer_list<const char*> items)
{
    QStringList list;
    for (const char* item : items)
        list.append(QString::fromUtf8(item));
    return list;
}

QDomDocument document(const QString& xml)
{
    QDomDocument doc;
    doc.setContent(xml);
    return doc;
}

QString product(const QString& attributes, const QString& children)
{
    return QStringLiteral("<product name=\"hostile\" class=\"calendar\" binding=\"spiral\" %1>%2</product>").arg(attributes, children);
}

PvContentDropRedirectList redirects(const QString& elements)
{
    return PvContentDropRedirectList(document(QStringLiteral("<contentredirects>%1</contentredirects>").arg(elements)).documentElement());
}

// What content redirects answered when they were stored page by page: the reference.
int expandedTarget(const QList<QPair<QString, int>>& redirects, int page)
{
    QMap<qint64, int> pages;
    for (const auto& [from, to] : redirects) {
        const QStringList ends = from.split(QLatin1Char('-'));
        for (qint64 p = ends.first().toInt(); p <= ends.last().toInt(); ++p)
            pages.insert(p, to);
    }
    return pages.value(page, page);
}

PvSpiralConfig spirals(const QString& attributes)
{
    return PvSpiralConfig(document(QStringLiteral("<spirals %1/>").arg(attributes)).documentElement());
}

// The least time per run of \a work, over a few rounds of at least 20 ms each.
qint64 nanosecondsPerRun(const std::function<void()>& work)
{
    qint64 best = LLONG_MAX;
    for (int round = 0; round < 3; ++round) {
        QElapsedTimer timer;
        timer.start();
        int runs = 0;
        do {
            work();
            ++runs;
        } while (timer.elapsed() < 20);
        best = qMin(best, timer.nsecsElapsed() / runs);
    }
    return best;
}

// What an editor asks of a product's description for a product of \a pageCount pages.
void queryAll(const PvProductTypeDescription& description, unsigned int pageCount)
{
    const PvPageTypeList pages = description.pageTypes(pageCount);
    for (int i = 0; i < pages.size(); ++i) {
        (void)description.pageAlignment(pages, i);
        (void)description.contentDropRedirect(i);
        (void)description.contentAllowedOnPage(i);
        (void)description.userPageTiltAllowed(i);
    }
    (void)description.productionNumberingList(int(pageCount));
    (void)description.extraProductionPageCount();
    (void)description.allowedJigCategories(PvPageType(PvPageTypePage), PvJigType(PvJigTypeBackground));
}

// Swallows the warnings of hostile files where their number is not the point.
class QuietLog
{
public:
    QuietLog()
        : m_previous(qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {}))
    {
    }
    ~QuietLog() { qInstallMessageHandler(m_previous); }
    Q_DISABLE_COPY_MOVE(QuietLog)

private:
    QtMessageHandler m_previous;
};

using Generator = std::function<QString(int)>;
}

Q_DECLARE_METATYPE(Generator)

class TestBounds : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_root.isValid());
        QVERIFY(QDir(m_root.path()).mkdir(QStringLiteral("thumbnails")));
        QImage loop(8, 16, QImage::Format_ARGB32);
        loop.fill(Qt::blue);
        QVERIFY(loop.save(thumbnail(QStringLiteral("loop.png"))));
        QVERIFY(loop.save(m_root.filePath(QStringLiteral("outside.png"))));
        PvDirectoryConfig::instance().setThumbnailsDir(QDir(m_root.filePath(QStringLiteral("thumbnails"))));
    }

    void contentRedirects_data()
    {
        QTest::addColumn<QStringList>("froms");
        QTest::addColumn<QList<int>>("targets");
        QTest::addColumn<int>("warnings");

        QTest::newRow("single pages and a range") << texts({ "3", "5-7" }) << QList<int> { 1, 2 } << 0;
        QTest::newRow("later wins inside an earlier range") << texts({ "0-20", "5-9" }) << QList<int> { 1, 2 } << 0;
        QTest::newRow("later wins over the start") << texts({ "5-9", "0-6" }) << QList<int> { 1, 2 } << 0;
        QTest::newRow("later wins over the end") << texts({ "5-9", "8-12" }) << QList<int> { 1, 2 } << 0;
        QTest::newRow("later covers several earlier") << texts({ "1-2", "4", "6-8", "0-7" }) << QList<int> { 1, 2, 3, 4 } << 0;
        QTest::newRow("same range twice") << texts({ "2-4", "2-4" }) << QList<int> { 1, 2 } << 0;
        QTest::newRow("adjacent ranges") << texts({ "0-4", "5-9", "10" }) << QList<int> { 1, 2, 3 } << 0;
        QTest::newRow("backwards range does nothing") << texts({ "9-3" }) << QList<int> { 1 } << 0;
        QTest::newRow("width 100000 exactly") << texts({ "0-99999" }) << QList<int> { 7 } << 0;
        QTest::newRow("width 100001 is refused") << texts({ "0-100000", "4" }) << QList<int> { 7, 8 } << 1;
        QTest::newRow("up to the top of int") << texts({ "2147400000-2147483647", "2147483647" }) << QList<int> { 1, 2 } << 0;
        QTest::newRow("negative end") << texts({ "-4", "5" }) << QList<int> { 1, 2 } << 1;
        QTest::newRow("negative target") << texts({ "3", "4" }) << QList<int> { -1, 2 } << 1;
    }

    void contentRedirects()
    {
        QFETCH(QStringList, froms);
        QFETCH(QList<int>, targets);
        QFETCH(int, warnings);

        QString elements;
        QList<QPair<QString, int>> valid;
        for (int i = 0; i < froms.size(); ++i) {
            elements += QStringLiteral("<contentredirect from=\"%1\" to=\"%2\"/>").arg(froms.at(i)).arg(targets.at(i));
            const QStringList ends = froms.at(i).split(QLatin1Char('-'));
            const bool readable = !ends.first().isEmpty() && targets.at(i) >= 0 && ends.last().toLongLong() - ends.first().toLongLong() < 100000;
            if (readable)
                valid.append({ froms.at(i), targets.at(i) });
        }
        for (int i = 0; i < warnings; ++i)
            QTest::ignoreMessage(QtWarningMsg, "parse error");
        const PvContentDropRedirectList list = redirects(elements);

        QList<int> probes;
        for (int page = -2; page <= 25; ++page)
            probes.append(page);
        probes << 99998 << 99999 << 100000 << 100001 << 2147399999 << 2147400000 << 2147483646 << INT_MAX << INT_MIN;
        for (const int page : probes)
            QCOMPARE(list.targetPage(page), expandedTarget(valid, page));
    }

    void pageListBound_data()
    {
        QTest::addColumn<QString>("pages");
        QTest::addColumn<int>("pageCount");
        QTest::addColumn<int>("expected"); // before the bound

        QTest::newRow("one run, exactly at the bound") << "cover_back,spine,cover_front,run" << maximumPages - 3 << maximumPages;
        QTest::newRow("one run, one over") << "cover_back,spine,cover_front,run" << maximumPages - 2 << maximumPages + 1;
        QTest::newRow("four billion pages asked for") << "run_pairs" << int(-1) << int(-1);
        QTest::newRow("thousands of runs") << QStringList(2000, QStringLiteral("run")).join(QLatin1Char(',')) << 24 << 48000;
        QTest::newRow("400 year runs fill the bound") << QStringList(400, QStringLiteral("run_year")).join(QLatin1Char(',')) << 0 << maximumPages;
        QTest::newRow("401 year runs") << QStringList(401, QStringLiteral("run_year")).join(QLatin1Char(',')) << 0 << maximumPages + 25;
        QTest::newRow("jacket cut in the middle") << QStringList(2499, QStringLiteral("jacket")).join(QLatin1Char(',')) + QStringLiteral(",page,jacket") << 0 << maximumPages + 1;
    }

    void pageListBound()
    {
        QFETCH(QString, pages);
        QFETCH(int, pageCount);
        QFETCH(int, expected);

        const PvProductTypeDescription description(document(product(QString(), QStringLiteral("<pages>%1</pages>").arg(pages))).documentElement());
        const bool cut = unsigned(expected) > unsigned(maximumPages);
        if (cut)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^Page list of product \"hostile\" for %1 pages cut at 10000 pages$").arg(unsigned(pageCount))));
        else
            QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
        QCOMPARE(description.pageTypes(unsigned(pageCount)).size(), cut ? maximumPages : expected);
    }

    void defaultTemplatesBound_data()
    {
        QTest::addColumn<int>("defaults"); // one page type, one alignment: three entries each
        QTest::addColumn<QString>("last");
        QTest::addColumn<int>("size");
        QTest::addColumn<QString>("page0");

        const QString again = QStringLiteral("<default pageType=\"page\" alignment=\"left\" pageNr=\"0\" background=\"again\"/>");
        QTest::newRow("19998 entries") << 6666 << QString() << 19998 << "b0";
        QTest::newRow("one default over: two of three stored") << 6667 << QString() << 20000 << "b0";
        QTest::newRow("full map still replaces a known key") << 6667 << again << 20000 << "again";
    }

    void defaultTemplatesBound()
    {
        QFETCH(int, defaults);
        QFETCH(QString, last);
        QFETCH(int, size);
        QFETCH(QString, page0);

        QString xml;
        for (int i = 0; i < defaults; ++i)
            xml += QStringLiteral("<default pageType=\"page\" alignment=\"left\" pageNr=\"%1\" background=\"b%1\"/>").arg(i);
        if (size == 20000 && 3 * defaults > size)
            QTest::ignoreMessage(QtWarningMsg, "Default templates beyond 20000 entries skipped");
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
        const PvDefaultTemplateMap map(document(QStringLiteral("<defaults>%1%2</defaults>").arg(xml, last)).documentElement());
        QCOMPARE(map.size(), size);
        const PvPageContext context { PvPageType(PvPageTypePage), PvPageAlignment(PvPageAlignmentLeft) };
        QCOMPARE(map.findTemplate(PvDefaultTemplateKey(context, PvDefaultTemplateTypeBackground, 0)), page0);
    }

    void spiralLength_data()
    {
        QTest::addColumn<QString>("attributes");
        QTest::addColumn<int>("length");

        QTest::newRow("ordinary") << "count=\"35\" loopWidth=\"54\" loopDistance=\"30\"" << 35 * 54 + 34 * 30;
        QTest::newRow("64-bit sum overflows: saturates") << "count=\"-2147483648\" loopWidth=\"-2147483648\" loopDistance=\"-2147483648\"" << INT_MAX;
        QTest::newRow("huge terms that cancel") << "count=\"-2147483648\" loopWidth=\"-2147483648\" loopDistance=\"2147483647\"" << 1;
        QTest::newRow("largest without overflow") << "count=\"2147483647\" loopWidth=\"2147483647\" loopDistance=\"2147483647\"" << INT_MAX;
        QTest::newRow("most negative") << "count=\"2147483647\" loopWidth=\"-2147483648\" loopDistance=\"-2147483648\"" << INT_MIN;
    }

    void spiralLength()
    {
        QFETCH(QString, attributes);
        QFETCH(int, length);

        const PvSpiralConfig config = spirals(attributes);
        QCOMPARE(config.spiralSize(Qt::Horizontal).width(), length);
        QCOMPARE(config.spiralSize(Qt::Vertical).height(), length);
    }

    void spiralPictures_data()
    {
        QTest::addColumn<QString>("attributes");
        QTest::addColumn<QSize>("loop");
        QTest::addColumn<QSize>("strip");
        QTest::addColumn<QSize>("hook");
        QTest::addColumn<QStringList>("warnings"); // in the order loop, strips, hook ask for them

        const QString strip = QStringLiteral("Spiral strip of %1 x %2 exceeds 10000 x 2000 or 4194304 pixels, not drawn");
        const QString loop2001 = QStringLiteral("Spiral loop of 20 x 2001 exceeds 2000 x 2000 or 4194304 pixels, not drawn");
        const QString loopHuge = QStringLiteral("Spiral loop of 2147483647 x 2147483647 exceeds 2000 x 2000 or 4194304 pixels, not drawn");
        QTest::newRow("strip exactly 10000 long") << "count=\"313\" loopWidth=\"16\" loopHeight=\"100\"" << QSize(16, 100) << QSize(10000, 100) << QSize() << QStringList();
        QTest::newRow("strip 10001 long") << "count=\"5001\" loopWidth=\"1\" loopHeight=\"100\"" << QSize(1, 100) << QSize() << QSize() << QStringList(2, strip.arg(10001).arg(100));
        QTest::newRow("strip at the pixel bound") << "count=\"5\" loopWidth=\"1000\" loopHeight=\"466\"" << QSize(1000, 466) << QSize(9000, 466) << QSize() << QStringList();
        QTest::newRow("strip one row over the pixel bound") << "count=\"5\" loopWidth=\"1000\" loopHeight=\"467\"" << QSize(1000, 467) << QSize() << QSize() << QStringList(2, strip.arg(9000).arg(467));
        QTest::newRow("loop 2000 high") << "count=\"1\" loopWidth=\"20\" loopHeight=\"2000\"" << QSize(20, 2000) << QSize(20, 2000) << QSize() << QStringList();
        QTest::newRow("loop 2001 high") << "count=\"1\" loopWidth=\"20\" loopHeight=\"2001\"" << QSize() << QSize() << QSize() << QStringList(3, loop2001);
        QTest::newRow("hook 2000 wide") << "hookWidth=\"2000\" hookHeight=\"10\"" << QSize(54, 150) << QSize() << QSize(2000, 20) << QStringList();
        QTest::newRow("hook 2001 wide") << "hookWidth=\"2001\" hookHeight=\"10\"" << QSize(54, 150) << QSize() << QSize()
                                        << texts({ "Spiral hook of 2001 x 20 exceeds 2000 x 4000 or 4194304 pixels, not drawn" });
        QTest::newRow("hook 4000 high") << "hookWidth=\"1000\" hookHeight=\"2000\"" << QSize(54, 150) << QSize() << QSize(1000, 4000) << QStringList();
        QTest::newRow("hook 4002 high") << "hookWidth=\"10\" hookHeight=\"2001\"" << QSize(54, 150) << QSize() << QSize()
                                        << texts({ "Spiral hook of 10 x 4002 exceeds 2000 x 4000 or 4194304 pixels, not drawn" });
        QTest::newRow("near the int limits") << "count=\"2147483647\" loopWidth=\"2147483647\" loopHeight=\"2147483647\" hookWidth=\"-2147483648\" hookHeight=\"2147483647\""
                                             << QSize() << QSize() << QSize() << QStringList(3, loopHuge);
    }

    void spiralPictures()
    {
        QFETCH(QString, attributes);
        QFETCH(QSize, loop);
        QFETCH(QSize, strip);
        QFETCH(QSize, hook);
        QFETCH(QStringList, warnings);

        const PvSpiralConfig config = spirals(QStringLiteral("variant=\"loop.png\" ") + attributes);
        for (const QString& warning : warnings)
            QTest::ignoreMessage(QtWarningMsg, qPrintable(warning));
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
        QCOMPARE(config.bindingLoopImage().size(), loop.isValid() ? loop : QSize(0, 0));
        QCOMPARE(config.spiralImage(Qt::Horizontal).size(), strip.isValid() ? strip : QSize(0, 0));
        QCOMPARE(config.spiralImage(Qt::Vertical).size(), strip.isValid() ? strip.transposed() : QSize(0, 0));
        QCOMPARE(config.spiralHookImage().size(), hook.isValid() ? hook : QSize(0, 0));
    }

    void picturePaths_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("accepted");

        QTest::newRow("plain name") << "loop.png" << true;
        QTest::newRow("sub-folder") << "spirals/loop.png" << true;
        QTest::newRow("dots inside names") << "...loop..png" << true;
        QTest::newRow("up and out") << "../outside.png" << false;
        QTest::newRow("up in the middle") << "spirals/../../outside.png" << false;
        QTest::newRow("up, back-slashed") << "spirals\\..\\..\\outside.png" << false;
        QTest::newRow("absolute") << m_root.filePath(QStringLiteral("outside.png")) << false;
        QTest::newRow("back-slash root") << "\\outside.png" << false;
        QTest::newRow("drive letter") << "C:/outside.png" << false;
        QTest::newRow("Qt resource") << ":/outside.png" << false;
    }

    void picturePaths()
    {
        QFETCH(QString, path);
        QFETCH(bool, accepted);

        const QString warning = QStringLiteral("Picture path outside the thumbnails folder refused: \"%1\"").arg(path);
        if (!accepted)
            QTest::ignoreMessage(QtWarningMsg, qPrintable(warning));
        PvSpiralConfig variant(document(QStringLiteral("<spirals count=\"2\" variant=\"%1\"/>").arg(path.toHtmlEscaped())).documentElement());
        QCOMPARE(variant.variant(), accepted ? path : QStringLiteral("spiralbinding-one-loop-vertical.png"));

        if (!accepted)
            QTest::ignoreMessage(QtWarningMsg, qPrintable(warning));
        PvSpiralConfig colours(document(QStringLiteral("<spirals count=\"2\" variant=\"loop.png\"><loopImages>"
                                                       "<loopImage variant=\"gold\" imagePath=\"%1\"/></loopImages></spirals>")
                                            .arg(path.toHtmlEscaped()))
                                   .documentElement());
        colours.setSpiralColor(QStringLiteral("gold"));
        QCOMPARE(colours.variant(), accepted ? path : QStringLiteral("loop.png"));
    }

    void outsidePictureIsNotRead()
    {
        QTest::ignoreMessage(QtWarningMsg, "Picture path outside the thumbnails folder refused: \"../outside.png\"");
        const PvSpiralConfig config = spirals(QStringLiteral("count=\"2\" variant=\"../outside.png\""));
        QVERIFY(config.bindingLoopImage().isNull());
        QVERIFY(spirals(QStringLiteral("count=\"2\" variant=\"loop.png\"")).bindingLoopImage().size() == QSize(54, 150));
    }

    void regressionInputs_data()
    {
        QTest::addColumn<QString>("file");
        // The inputs the fuzzers replay; this test has no fixtures of its own.
        QDirIterator it(QDir::cleanPath(QStringLiteral(PV_TESTDATA "/../fuzz/product_description")), { QStringLiteral("*.xml") }, QDir::Files);
        while (it.hasNext()) {
            it.next();
            QTest::newRow(qPrintable(it.fileName())) << it.filePath();
        }
    }

    // The inputs that once took the library down load and answer within the bounds.
    void regressionInputs()
    {
        QFETCH(QString, file);

        QFile::remove(thumbnail(QStringLiteral("spiralbinding-one-loop-vertical.png")));
        QVERIFY(QFile::copy(thumbnail(QStringLiteral("loop.png")), thumbnail(QStringLiteral("spiralbinding-one-loop-vertical.png"))));
        const QDomElement products = PvXMLLoader::loadDocumentElement(file);
        QVERIFY(!products.isNull());
        const qint64 before = heapInUse();
        QElapsedTimer timer;
        timer.start();
        const QuietLog quiet;
        const PvProductTypeDescription description(products.firstChildElement(QStringLiteral("product")));
        QVERIFY(heapInUse() - before < 16 * megabyte);

        queryAll(description, 24);
        queryAll(description, 1000);
        qint64 pixels = 0;
        for (const PvSurroundingDescription& surrounding : description.surroundings()) {
            PvSpiralConfig spiral = surrounding.spiralConfig();
            for (const QString& colour : { QString(), QStringLiteral("gold"), QStringLiteral("silver"), QStringLiteral("black"), QStringLiteral("copper") }) {
                spiral.setSpiralColor(colour);
                for (const QImage& picture : { spiral.bindingLoopImage(), spiral.spiralImage(Qt::Horizontal), spiral.spiralImage(Qt::Vertical), spiral.spiralHookImage() }) {
                    QVERIFY(picture.width() <= 10000 && picture.height() <= 10000);
                    pixels += qint64(picture.width()) * picture.height();
                }
            }
        }
        QVERIFY(pixels <= 20 * (qint64(1) << 22));
        QVERIFY(description.pageTypes(24).size() <= maximumPages);
        // Generous: a sanitizer build on a busy machine; unbounded, these took seconds.
        QVERIFY2(timer.elapsed() < 3000, qPrintable(QString::number(timer.elapsed())));
    }

    void costGrowsWithFileSize_data()
    {
        QTest::addColumn<Generator>("generate");
        QTest::addColumn<int>("units"); // of the smaller file; the larger one has eight times as many
        // Page count 24 keeps the page lists below their bound, where a quadratic walk would show.

        QTest::newRow("content redirect ranges") << Generator([](int n) {
            QString xml;
            for (int i = 0; i < n; ++i)
                xml += QStringLiteral("<contentredirect from=\"%1-%2\" to=\"%3\"/>").arg(i * 100000).arg(i * 100000 + 99999).arg(i);
            return product(QString(), QStringLiteral("<contentredirects>%1</contentredirects>").arg(xml));
        }) << 8;
        QTest::newRow("overlapping content redirects") << Generator([](int n) {
            QString xml;
            for (int i = 0; i < n; ++i)
                xml += QStringLiteral("<contentredirect from=\"%1-%2\" to=\"%1\"/>").arg(i).arg(i + 99999);
            return product(QString(), QStringLiteral("<contentredirects>%1</contentredirects>").arg(xml));
        }) << 8;
        QTest::newRow("page runs") << Generator([](int n) {
            return product(QString(), QStringLiteral("<pages>cover,%1</pages>").arg(QStringList(n, QStringLiteral("run")).join(QLatin1Char(','))));
        }) << 50;
        QTest::newRow("year runs") << Generator([](int n) {
            return product(QString(), QStringLiteral("<pages>%1</pages>").arg(QStringList(n, QStringLiteral("run_year")).join(QLatin1Char(','))));
        }) << 40;
        QTest::newRow("extra production page ranges") << Generator([](int n) {
            QString xml;
            for (int i = 0; i < n; ++i)
                xml += QStringLiteral("<item><target_pages>0-99999</target_pages><pdf filename=\"x.pdf\"/></item>");
            return product(QString(), QStringLiteral("<extra_production_pages>%1</extra_production_pages>").arg(xml));
        }) << 8;
        QTest::newRow("default templates for every context") << Generator([](int n) {
            QString xml;
            for (int i = 0; i < n; ++i)
                xml += QStringLiteral("<default pageType=\"spine,left,right,page,flyleaf,cover_back,cover,cover_front,month,opening\" "
                                      "alignment=\"left,right,center,spread,top,bottom,middle\" pageNr=\"%1\" background=\"b\"/>").arg(i);
            return product(QString(), QStringLiteral("<defaults>%1</defaults>").arg(xml));
        }) << 2;
        // Past the 20000-entry bound the defaults are stored key by key: 1800 entries each.
        QTest::newRow("default templates beyond the bound") << Generator([](int n) {
            const QString pageTypes = QStringList(100, QStringLiteral("page")).join(QLatin1Char(','));
            QString xml;
            for (int i = 0; i < n; ++i)
                xml += QStringLiteral("<default pageType=\"%1\" alignment=\"left,right,center,top,bottom,middle\" pageNr=\"%2\"/>").arg(pageTypes).arg(i);
            return product(QString(), QStringLiteral("<defaults>%1</defaults>").arg(xml));
        }) << 12;
        QTest::newRow("surroundings with spirals") << Generator([](int n) {
            return product(QString(), QStringLiteral("<surroundings>%1</surroundings>")
                                          .arg(QString(QStringLiteral("<surrounding><spirals count=\"2147483647\" loopHeight=\"2147483647\"/><hole diameter=\"9\"/></surrounding>")).repeated(n)));
        }) << 16;
        QTest::newRow("background categories") << Generator([](int n) {
            QStringList names;
            for (int i = 0; i < n; ++i)
                names.append(QStringLiteral("bounds-%1-%2").arg(n).arg(i));
            return product(QString(), QStringLiteral("<editorAbilities><jigs><background><categories pageType=\"all\">%1</categories>"
                                                     "</background></jigs></editorAbilities>").arg(names.join(QLatin1Char(','))));
        }) << 256;
        QTest::newRow("production numbers") << Generator([](int n) {
            return product(QString(), QStringLiteral("<productionnumbering>%1</productionnumbering><pageswithcontent>%1</pageswithcontent>")
                                          .arg(QStringList(n, QStringLiteral("2147483647")).join(QLatin1Char(','))));
        }) << 64;
    }

    // Loading and querying a hostile file costs memory within 256 bytes per byte of file (beyond
    // a fixed floor) and
    // time that grows no faster than the file: eight times the file, at most three times
    // eight the time (quadratic growth would be 64 times).
    void costGrowsWithFileSize()
    {
        QFETCH(Generator, generate);
        QFETCH(int, units);

        qint64 times[2] = {};
        for (int step = 0; step < 2; ++step) {
            const QString xml = generate(step == 0 ? units : 8 * units);
            const qint64 bytes = xml.toUtf8().size();
            QVERIFY2(bytes < 64 * 1024, qPrintable(QString::number(bytes)));
            const QDomDocument doc = document(xml);
            const QuietLog quiet;
            // Once first, so that tables built on first use do not count against the file.
            (void)PvProductTypeDescription(doc.documentElement());
            const qint64 before = heapInUse();
            std::unique_ptr<PvProductTypeDescription> description(new PvProductTypeDescription(doc.documentElement()));
            const qint64 held = heapInUse() - before;
            // The floor is the extra production pages' own cap: 100000 target pages of 4 bytes.
            QVERIFY2(held < 512 * 1024 + 256 * bytes, qPrintable(QStringLiteral("%1 bytes held for a file of %2").arg(held).arg(bytes)));
            description.reset();

            times[step] = nanosecondsPerRun([&doc] {
                const PvProductTypeDescription loaded(doc.documentElement());
                queryAll(loaded, 24);
            });
        }
        QVERIFY2(times[1] <= 24 * times[0], qPrintable(QStringLiteral("%1 ns, then %2 ns").arg(times[0]).arg(times[1])));
    }

private:
    QString thumbnail(const QString& name) const { return m_root.filePath(QStringLiteral("thumbnails/") + name); }

    QTemporaryDir m_root;
};

QTEST_MAIN(TestBounds)
#include "tst_bounds.moc"
