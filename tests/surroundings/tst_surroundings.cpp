#include "PvCSSSkinManager.h"
#include "PvDirectoryConfig.h"
#include "PvSpiralConfig.h"
#include "PvSurroundingDescription.h"
#include "PvSurroundingDescriptionList.h"
#include "PvSurroundingKey.h"
#include "PvXMLLoader.h"

#include <QDomDocument>
#include <QFile>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

namespace {
QDomDocument document(const QString& xml)
{
    QDomDocument doc;
    doc.setContent(xml);
    return doc;
}

PvSpiralConfig spirals(const QString& attributes)
{
    return PvSpiralConfig(document(QStringLiteral("<spirals %1/>").arg(attributes)).documentElement());
}

PvSurroundingDescription surrounding(const QString& attributes)
{
    const QDomDocument doc = document(QStringLiteral("<surrounding %1/>").arg(attributes));
    return PvSurroundingDescription(PvProductType(QStringLiteral("p")), doc.documentElement());
}
}

class TestSurroundings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // A loop picture red above, blue below, so that the turn direction shows.
        QImage loop(8, 16, QImage::Format_ARGB32);
        loop.fill(Qt::blue);
        QPainter(&loop).fillRect(0, 0, 8, 8, Qt::red);
        QVERIFY(loop.save(m_thumbnails.filePath(QStringLiteral("loop.png"))));
        PvDirectoryConfig::instance().setThumbnailsDir(QDir(m_thumbnails.path()));
    }

    void spiralSize_data()
    {
        QTest::addColumn<QString>("attributes");
        QTest::addColumn<bool>("hasSpiral");
        QTest::addColumn<bool>("hasHook");
        QTest::addColumn<QSize>("horizontal");

        QTest::newRow("count only: loops 54 wide, gaps of 30") << "count=\"10\"" << true << false << QSize(810, 150);
        QTest::newRow("no loops: length -distance") << "count=\"0\"" << false << false << QSize(-30, 150);
        QTest::newRow("hook needs both sizes") << "count=\"2\" hookWidth=\"100\" hookHeight=\"0\"" << true << false << QSize(138, 150);
        QTest::newRow("hook") << "count=\"2\" hookWidth=\"10\" hookHeight=\"5\" loopHeight=\"7\"" << true << true << QSize(138, 7);
        QTest::newRow("overflowing count is clamped") << "count=\"2000000000\"" << true << false << QSize(INT_MAX, 150);
    }

    void spiralSize()
    {
        QFETCH(QString, attributes);
        QFETCH(bool, hasSpiral);
        QFETCH(bool, hasHook);
        QFETCH(QSize, horizontal);

        const PvSpiralConfig config = spirals(attributes);
        QCOMPARE(config.hasSpiral(), hasSpiral);
        QCOMPARE(config.hasHook(), hasHook);
        QCOMPARE(config.spiralSize(Qt::Horizontal), horizontal);
        QCOMPARE(config.spiralSize(Qt::Vertical), horizontal.transposed());
        QCOMPARE(config.spiralSize(Qt::Orientation(0)), QSize(-1, -1));
        QVERIFY(config.spiralImage(Qt::Orientation(0)).isNull());
    }

    void strip_data()
    {
        QTest::addColumn<QString>("hook");
        QTest::addColumn<QString>("drawn"); // one character per loop

        // Ten loops 54 wide at a pitch of 108 make a strip 1026 wide, centre 513.
        QTest::newRow("no hook height, no gap") << "hookWidth=\"270\"" << "1111111111";
        QTest::newRow("gap 463..563") << "hookWidth=\"100\" hookHeight=\"20\"" << "1111001111";
        QTest::newRow("gap 379..647 misses both neighbours") << "hookWidth=\"268\" hookHeight=\"20\"" << "1111001111";
        QTest::newRow("gap 378..647 truncated, touches loop 3 end") << "hookWidth=\"269\" hookHeight=\"20\"" << "1110001111";
        QTest::newRow("gap 378..648 touches loop 6 start") << "hookWidth=\"270\" hookHeight=\"20\"" << "1110000111";
    }

    void strip()
    {
        QFETCH(QString, hook);
        QFETCH(QString, drawn);

        const PvSpiralConfig config = spirals(QStringLiteral("count=\"10\" variant=\"loop.png\" ") + hook);
        const QImage horizontal = config.spiralImage(Qt::Horizontal);
        const QImage vertical = config.spiralImage(Qt::Vertical);
        QCOMPARE(horizontal.size(), QSize(1026, 150));
        QCOMPARE(vertical.size(), QSize(150, 1026));
        for (int i = 0; i < 10; ++i) {
            const int middle = 108 * i + 27;
            const bool expected = drawn.at(i) == QLatin1Char('1');
            QCOMPARE(qAlpha(horizontal.pixel(middle, 75)) == 255, expected);
            QCOMPARE(qAlpha(vertical.pixel(75, middle)) == 255, expected);
            if (i < 9)
                QCOMPARE(qAlpha(horizontal.pixel(middle + 54, 75)), 0);
            if (expected) {
                QCOMPARE(horizontal.pixel(middle, 5), qRgb(255, 0, 0));
                // Clockwise: the top of the loop faces right.
                QCOMPARE(vertical.pixel(144, middle), qRgb(255, 0, 0));
                QCOMPARE(vertical.pixel(5, middle), qRgb(0, 0, 255));
            }
        }
    }

    void loopPictureCache()
    {
        PvSpiralConfig config = PvSpiralConfig(document(QStringLiteral(
            "<spirals count=\"3\" variant=\"late.png\"><loopImages>"
            "<loopImage variant=\"gold\" imagePath=\"loop.png\"/><loopImage variant=\"silver\" imagePath=\"\"/>"
            "<loopImage variant=\"copper \" imagePath=\" \"/>"
            "</loopImages></spirals>")).documentElement());
        QVERIFY(config.bindingLoopImage().isNull());
        QVERIFY(config.spiralImage(Qt::Horizontal).isNull());

        // A picture that appears later is still picked up: failures are not cached.
        QVERIFY(QFile::copy(m_thumbnails.filePath(QStringLiteral("loop.png")), m_thumbnails.filePath(QStringLiteral("late.png"))));
        const QImage loaded = config.bindingLoopImage();
        QCOMPARE(loaded.size(), QSize(54, 150));

        config.setSpiralColor(QStringLiteral("silver"));
        QCOMPARE(config.variant(), QStringLiteral("late.png"));
        // Names and paths are taken as written, blanks included.
        config.setSpiralColor(QStringLiteral("copper"));
        QCOMPARE(config.variant(), QStringLiteral("late.png"));
        config.setSpiralColor(QStringLiteral("copper "));
        QCOMPARE(config.variant(), QStringLiteral(" "));
        config.setSpiralColor(QStringLiteral("gold"));
        QCOMPARE(config.variant(), QStringLiteral("loop.png"));
        QCOMPARE(config.bindingLoopImage().cacheKey(), loaded.cacheKey());
    }

    void hookImage_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("height");
        QTest::addColumn<QColor>("colour");

        QTest::newRow("red") << 40 << 20 << QColor(Qt::red);
        QTest::newRow("same size, skin turned green") << 40 << 20 << QColor(Qt::green);
        QTest::newRow("other size") << 30 << 10 << QColor(Qt::green);
        QTest::newRow("negative") << -6 << 20 << QColor(Qt::green);
        QTest::newRow("too large to allocate") << 30000 << 1000000000 << QColor(Qt::green);
    }

    void hookImage()
    {
        QFETCH(int, width);
        QFETCH(int, height);
        QFETCH(QColor, colour);

        // Kept across rows: one picture per hook size, redrawn when the skin changes.
        static PvSpiralConfig config;
        static qint64 lastKey = 0;
        if (config.hookWidth() != width || config.hookHeight() != height)
            config = spirals(QStringLiteral("hookWidth=\"%1\" hookHeight=\"%2\"").arg(width).arg(height));
        PvCSSSkinManager::instance().setBackgroundColor(colour);
        const QImage hook = config.spiralHookImage();
        if (width <= 0 || height > 1000) {
            QVERIFY(hook.isNull());
            return;
        }
        QCOMPARE(hook.size(), QSize(width, 2 * height));
        QVERIFY(hook.cacheKey() != lastKey);
        lastKey = hook.cacheKey();
        QCOMPARE(config.spiralHookImage().cacheKey(), lastKey);
        QCOMPARE(hook.pixel(width / 2, height), colour.rgb());
        QCOMPARE(qAlpha(hook.pixel(0, 0)), 0);
        // The ellipse stops 2 short of the right and bottom edges.
        QCOMPARE(qAlpha(hook.pixel(width - 1, height)), 0);
        QCOMPARE(qAlpha(hook.pixel(width / 2, 2 * height - 1)), 0);
    }

    void readDescription_data()
    {
        QTest::addColumn<QString>("attributes");
        QTest::addColumn<QString>("read"); // type, page types, alignments, pageNr, fold, fold with margins

        QTest::newRow("no attributes: book everywhere") << "" << "1 f03f9 119 -1 0 0";
        QTest::newRow("frame covers every page") << "type=\"frame\" pageType=\"cover\" alignment=\"left\" pageNr=\"4\"" << "16 f03f9 127 -1 0 0";
        QTest::newRow("frame with another bit keeps its pages") << "type=\"frame,tiled\" pageType=\"cover\" pageNr=\"4\"" << "1040 40 119 4 0 0";
        QTest::newRow("unknown type") << "type=\"cloud\" alignment=\"spread\"" << "0 f03f9 8 -1 0 0";
        QTest::newRow("fold 7 with margins 8") << "hasspinefold=\"true\" spinefoldwidth=\"7\"" << "1 f03f9 119 -1 1 8";
        QTest::newRow("camel-case fold name is not read") << "hasSpineFold=\"true\" spinefoldwidth=\"7\"" << "1 f03f9 119 -1 0 8";
        QTest::newRow("fold without width") << "hasspinefold=\"true\"" << "1 f03f9 119 -1 0 0";
        QTest::newRow("huge fold is clamped") << "spinefoldwidth=\"2000000000\"" << "1 f03f9 119 -1 0 2147483647";
    }

    void readDescription()
    {
        QFETCH(QString, attributes);
        QFETCH(QString, read);

        const PvSurroundingDescription d = surrounding(attributes);
        QCOMPARE(QStringLiteral("%1 %2 %3 %4 %5 %6").arg(d.surroundingType().toUnderlying()).arg(d.pageTypes().toUnderlying(), 0, 16).arg(d.alignments().toUnderlying()).arg(d.pageNr()).arg(int(d.hasSpineFold())).arg(d.spineFoldWithSafetyMargins()), read);
        QVERIFY(d.paintOnTop());
        QCOMPARE(d.tileSize(), QSize(-1, -1));
    }

    void mergedAttributes()
    {
        const QDomDocument doc = document(QStringLiteral(
            "<product><surrounding image=\"own.png\"><hole diameter=\"5\" distanceY=\"9\"/><spirals count=\"4\"/></surrounding>"
            "<surrounding image=\"merged.png\" pageNr=\"2\" paintOnTop=\"false\" tileWidth=\"3\"/></product>"));
        const QDomElement own = doc.documentElement().firstChildElement();
        const PvSurroundingDescription description(PvProductType(QStringLiteral("p")), own, own.nextSiblingElement().attributes());
        QCOMPARE(description.imageResource(), QStringLiteral("merged.png"));
        QCOMPARE(description.pageNr(), 2);
        QVERIFY(!description.paintOnTop());
        QCOMPARE(description.tileSize(), QSize(3, -1));
        QVERIFY(description.calendarHoleConfig().hasHole());
        QCOMPARE(description.spiralConfig().spiralCount(), 4);
        QVERIFY(description != PvSurroundingDescription(PvProductType(QStringLiteral("p")), own));
    }

    void findDescription_data()
    {
        QTest::addColumn<QString>("pageType");
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("variants");
        QTest::addColumn<QString>("image");

        QTest::newRow("variant match") << "page" << 5 << "gold" << "inner-gold.png";
        QTest::newRow("page number") << "page" << 3 << "" << "page3.png";
        QTest::newRow("second block") << "page" << 5 << "" << "inner.png";
        QTest::newRow("fallback to no variants") << "page" << 5 << "silver" << "inner.png";
        QTest::newRow("any page fits the first") << "page" << -1 << "silver" << "cover.png";
        QTest::newRow("nothing fits") << "spine" << 5 << "silver" << "";
    }

    void findDescription()
    {
        QFETCH(QString, pageType);
        QFETCH(int, index);
        QFETCH(QString, variants);
        QFETCH(QString, image);

        const QDomElement product = PvXMLLoader::loadDocumentElement(QStringLiteral(PV_TESTDATA "/product.xml"));
        const PvSurroundingDescriptionList list(PvProductType(QStringLiteral("p")), product);
        QCOMPARE(list.size(), 5);
        QVERIFY(list.hasSurroundingWithBindingShade());
        const PvSurroundingKey key(PvPageContext(PvPageType(pageType), PvPageAlignment(PvPageAlignmentLeft)), index, PvArticleVariants(variants));
        const PvSurroundingDescription found = list.findDescription(key);
        QCOMPARE(found.imageResource(), image);
        if (image.isEmpty())
            QCOMPARE(found, PvSurroundingDescription());
    }

    void parseMask_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QList<QRect>>("rects");

        const QRect first(QPoint(1, 2), QPoint(30, 40));
        QTest::newRow("two groups") << "1 2 30 40;5 6 7 8" << QList<QRect> { first, QRect(QPoint(5, 6), QPoint(7, 8)) };
        QTest::newRow("stops at three numbers") << "1 2 30 40;5 6 7;9 9 9 9" << QList<QRect> { first };
        QTest::newRow("double blank makes five parts") << "1  2 30 40" << QList<QRect> {};
        QTest::newRow("unreadable number is 0") << "1 x 30 40" << QList<QRect> { QRect(QPoint(1, 0), QPoint(30, 40)) };
        QTest::newRow("trailing separator") << "1 2 30 40;" << QList<QRect> { first };
        QTest::newRow("empty") << "" << QList<QRect> {};
    }

    void parseMask()
    {
        QFETCH(QString, text);
        QFETCH(QList<QRect>, rects);
        QCOMPARE(PvSurroundingDescription::parseMask(text), rects);
    }

private:
    QTemporaryDir m_thumbnails;
};

QTEST_GUILESS_MAIN(TestSurroundings)
#include "tst_surroundings.moc"
