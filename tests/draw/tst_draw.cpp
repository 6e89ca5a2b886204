#include "PvDirectoryConfig.h"
#include "PvPagePainter.h"
#include "PvPictureLayout.h"
#include "PvPictureMarks.h"
#include "PvProductPicture.h"
#include "PvProductTypeConfigRegistry.h"
#include "PvProductTypeDescription.h"
#include "PvSurroundingKey.h"

#include <QDomDocument>
#include <QFile>
#include <QFontMetricsF>
#include <QImage>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTransform>

#include <algorithm>

namespace {
const PvProductTypeDescription& sample(const QString& type)
{
    return *PvProductTypeConfigRegistry::instance().description(PvProductType(type));
}

// Whether some pixel of \a color lies inside \a rect (its outline left out).
bool hasColor(const QImage& image, const QRectF& rect, const QColor& color)
{
    const QRect inside = rect.toAlignedRect().adjusted(2, 2, -2, -2);
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x) {
            if (image.pixelColor(x, y).rgb() == color.rgb())
                return true;
        }
    }
    return false;
}

QTransform transformOf(const QDomElement& element)
{
    static const QRegularExpression matrix(QStringLiteral("matrix\\(([^,]+),([^,]+),([^,]+),([^,]+),([^,]+),([^)]+)\\)"));
    const QRegularExpressionMatch m = matrix.match(element.attribute(QStringLiteral("transform")));
    if (!m.hasMatch())
        return QTransform();
    return QTransform(m.captured(1).toDouble(), m.captured(2).toDouble(), m.captured(3).toDouble(), m.captured(4).toDouble(), m.captured(5).toDouble(),
                      m.captured(6).toDouble());
}

// Every text of an SVG picture with the point it starts at, in the picture's coordinates.
QMultiHash<QString, QPointF> svgTexts(const QString& fileName)
{
    QFile file(fileName);
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file))
        return {};
    QMultiHash<QString, QPointF> texts;
    const QDomNodeList nodes = document.elementsByTagName(QStringLiteral("text"));
    for (int i = 0; i < nodes.size(); ++i) {
        const QDomElement text = nodes.at(i).toElement();
        QPointF at(text.attribute(QStringLiteral("x")).toDouble(), text.attribute(QStringLiteral("y")).toDouble());
        for (QDomElement e = text; !e.isNull(); e = e.parentNode().toElement())
            at = transformOf(e).map(at);
        texts.insert(text.text(), at);
    }
    return texts;
}
}

class TestDraw : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void pagesAsTheLibraryAnswers_data();
    void pagesAsTheLibraryAnswers();
    void spreadsFollowTheAlignments_data();
    void spreadsFollowTheAlignments();
    void sizeFromPageCount_data();
    void sizeFromPageCount();
    void svgLabelsInTheirPages_data();
    void svgLabelsInTheirPages();
    void marksOnExactlyTheirPages_data();
    void marksOnExactlyTheirPages();
    void refusals_data();
    void refusals();
    void hostileSpiral();
};

void TestDraw::initTestCase()
{
    PvDirectoryConfig::instance().setDataRoot(QDir(QStringLiteral(PV_SAMPLE)));
}

void TestDraw::pagesAsTheLibraryAnswers_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<int>("pageCount");
    QTest::newRow("photo book") << "photobook-hardcover-a4" << 8;
    QTest::newRow("panorama book") << "photobook-panorama-a4-landscape" << 6;
    QTest::newRow("book with jacket") << "photobook-hardcover-xl-jacket" << 4;
    QTest::newRow("folded card") << "card-easy-folded-a6" << 4;
    QTest::newRow("wall calendar") << "calendar-wall-a3-portrait" << 12;
    QTest::newRow("desk calendar") << "calendar-desk-a5-landscape" << 12;
    QTest::newRow("advent calendar, content on two pages") << "advent-calendar-photo" << 6;
}

void TestDraw::pagesAsTheLibraryAnswers()
{
    QFETCH(QString, type);
    QFETCH(int, pageCount);
    const PvProductTypeDescription& d = sample(type);
    const PvPageTypeList types = d.pageTypes(unsigned(pageCount));
    const QList<int> numbers = d.productionNumberingList(int(types.size()));
    const PvPictureLayout layout = PvPictureLayout::compute(d, pageCount);
    QVERIFY2(layout.problem.isEmpty(), qPrintable(layout.problem));
    QCOMPARE(layout.pages.size(), types.size());
    const QRectF picture(QPointF(0, 0), layout.size);
    for (const PvPicturePage& page : layout.pages) {
        QCOMPARE(page.pageTypeValue, quint32(types.at(page.index).value()));
        QCOMPARE(page.alignment, d.pageAlignment(types, page.index).encodeCSV());
        QCOMPARE(page.productionNumber, numbers.at(page.index));
        QCOMPARE(page.contentAllowed, d.contentAllowedOnPage(page.index));
        QVERIFY2(picture.contains(page.rect) && !page.rect.isEmpty(), qPrintable(QString::number(page.index)));
        QVERIFY(!page.rect.intersects(layout.legend));
        for (const PvPicturePage& other : layout.pages)
            QVERIFY2(other.index == page.index || !page.rect.intersects(other.rect), qPrintable(QStringLiteral("%1 and %2 overlap").arg(page.index).arg(other.index)));
    }
}

void TestDraw::spreadsFollowTheAlignments_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<int>("pageCount");
    QTest::newRow("photo book") << "photobook-hardcover-a4" << 8;
    QTest::newRow("folded card") << "card-easy-folded-a6" << 4;
    QTest::newRow("wall calendar") << "calendar-wall-a3-portrait" << 12;
    QTest::newRow("desk calendar") << "calendar-desk-a5-landscape" << 12;
}

void TestDraw::spreadsFollowTheAlignments()
{
    QFETCH(QString, type);
    QFETCH(int, pageCount);
    const PvProductTypeDescription& d = sample(type);
    const PvPictureLayout layout = PvPictureLayout::compute(d, pageCount);
    const int first = d.horizontalPages() ? 1 : 16;
    const int last = d.horizontalPages() ? 2 : 32;
    int pairs = 0;
    for (int i = 0; i + 1 < layout.pages.size(); ++i) {
        const PvPicturePage& a = layout.pages.at(i);
        const PvPicturePage& b = layout.pages.at(i + 1);
        // Cover pieces lie side by side in their own line.
        if (a.pageTypeValue & 0xF00E1 && d.hasSpine())
            continue;
        if (a.alignmentValue == quint32(first) && b.alignmentValue == quint32(last)) {
            ++pairs;
            if (d.horizontalPages()) {
                QCOMPARE(a.rect.right(), b.rect.left());
                QCOMPARE(a.rect.top(), b.rect.top());
            } else {
                QCOMPARE(a.rect.bottom(), b.rect.top());
                QCOMPARE(a.rect.left(), b.rect.left());
            }
        }
        // Pages read left to right, then line by line.
        QVERIFY(b.rect.top() > a.rect.top() || b.rect.left() > a.rect.left());
        if (d.horizontalPages())
            QVERIFY(a.rect.width() < a.rect.height() || a.narrow);
        else
            QVERIFY(a.rect.width() > a.rect.height());
    }
    QVERIFY(pairs > 0);
}

void TestDraw::sizeFromPageCount_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<int>("fewer");
    QTest::addColumn<int>("more");
    QTest::addColumn<bool>("grows");
    QTest::newRow("photo book") << "photobook-hardcover-a4" << 4 << 40 << true;
    QTest::newRow("panorama book") << "photobook-panorama-a4-landscape" << 4 << 40 << true;
    // The year run is 25 pages whatever the count.
    QTest::newRow("wall calendar") << "calendar-wall-a3-portrait" << 2 << 30 << false;
    QTest::newRow("folded card") << "card-easy-folded-a6" << 1 << 20 << false;
}

void TestDraw::sizeFromPageCount()
{
    QFETCH(QString, type);
    QFETCH(int, fewer);
    QFETCH(int, more);
    QFETCH(bool, grows);
    const PvPictureLayout small = PvPictureLayout::compute(sample(type), fewer);
    const PvPictureLayout large = PvPictureLayout::compute(sample(type), more);
    // Spreads wrap into lines: more pages make the picture taller, never wider than a line.
    QVERIFY(large.size.width() >= small.size.width());
    QVERIFY(large.size.width() <= 1100);
    QCOMPARE(large.size.height() > small.size.height(), grows);
    QCOMPARE(large.size.height() == small.size.height(), !grows);

    QTemporaryDir dir;
    const QString png = dir.filePath(QStringLiteral("picture.png"));
    QCOMPARE(PvProductPicture::write(sample(type), fewer, png), QString());
    QCOMPARE(QImage(png).size(), small.size);
    const QString svg = dir.filePath(QStringLiteral("picture.svg"));
    QCOMPARE(PvProductPicture::write(sample(type), more, svg), QString());
    QFile file(svg);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QDomDocument document;
    QVERIFY(document.setContent(&file));
    QCOMPARE(document.documentElement().attribute(QStringLiteral("viewBox")), QStringLiteral("0 0 %1 %2").arg(large.size.width()).arg(large.size.height()));
}

void TestDraw::svgLabelsInTheirPages_data()
{
    pagesAsTheLibraryAnswers_data();
}

void TestDraw::svgLabelsInTheirPages()
{
    QFETCH(QString, type);
    QFETCH(int, pageCount);
    const PvPictureLayout layout = PvPictureLayout::compute(sample(type), pageCount);
    QTemporaryDir dir;
    const QString svg = dir.filePath(QStringLiteral("picture.svg"));
    QCOMPARE(PvProductPicture::write(sample(type), pageCount, svg), QString());
    const QMultiHash<QString, QPointF> texts = svgTexts(svg);
    QVERIFY(!texts.isEmpty());
    QFont font;
    font.setPixelSize(9);
    const QFontMetricsF metrics(font);
    for (const PvPicturePage& page : layout.pages) {
        // Each label line is found in the page's own rectangle, from its start to its end.
        for (const QString& line : PvPagePainter::labelLines(page)) {
            const QList<QPointF> places = texts.values(line);
            const bool inside = std::any_of(places.cbegin(), places.cend(), [&](const QPointF& p) {
                return page.rect.contains(p) && page.rect.contains(p + QPointF(metrics.horizontalAdvance(line), 0));
            });
            QVERIFY2(inside || page.narrow, qPrintable(QStringLiteral("\"%1\" not in page %2").arg(line).arg(page.index)));
        }
    }
}

void TestDraw::marksOnExactlyTheirPages_data()
{
    pagesAsTheLibraryAnswers_data();
}

void TestDraw::marksOnExactlyTheirPages()
{
    QFETCH(QString, type);
    QFETCH(int, pageCount);
    const PvProductTypeDescription& d = sample(type);
    const PvPageTypeList types = d.pageTypes(unsigned(pageCount));
    const PvPictureLayout layout = PvPictureLayout::compute(d, pageCount);
    QTemporaryDir dir;
    const QString png = dir.filePath(QStringLiteral("picture.png"));
    QCOMPARE(PvProductPicture::write(d, pageCount, png), QString());
    const QImage image(png);
    for (const PvPicturePage& page : layout.pages) {
        const PvSurroundingKey key(PvPageContext(types.at(page.index), d.pageAlignment(types, page.index)), page.index, PvArticleVariants());
        const PvSurroundingDescription surrounding = d.findSurrounding(key);
        const QByteArray where = QByteArray::number(page.index);
        QCOMPARE(!page.spiralLoops.isEmpty(), surrounding.spiralConfig().hasSpiral());
        QVERIFY2(hasColor(image, page.rect, PvPictureMarks::loopColor) == surrounding.spiralConfig().hasSpiral(), where);
        QVERIFY2(hasColor(image, page.rect, PvPictureMarks::holeColor) == surrounding.calendarHoleConfig().hasHole(), where);
        QVERIFY2(hasColor(image, page.rect, PvPagePainter::hatchColor) == !d.contentAllowedOnPage(page.index), where);
        QCOMPARE(page.surroundingType, surrounding.surroundingType().value() ? surrounding.surroundingType().encodeCSV() : QString());
        QCOMPARE(page.bindingShade, surrounding.hasBindingShade());
        QCOMPARE(page.spineFold, surrounding.hasSpineFold());
        for (const QRectF& loop : page.spiralLoops)
            QVERIFY(page.rect.contains(loop));
    }
}

void TestDraw::refusals_data()
{
    QTest::addColumn<QString>("product");
    QTest::addColumn<int>("pageCount");
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QString>("problem");
    const QString book = QStringLiteral("<product name='b' class='photobook' binding='hardcover'><pages>cover_back,spine,cover_front,run</pages></product>");
    QTest::newRow("no pages") << "<product name='mug' class='mug' binding='hardcover'/>" << 4 << "a.png" << "product type \"mug\" has no pages";
    QTest::newRow("only illegal pages") << "<product name='x' class='mug' binding='hardcover'><pages>pgae,,</pages></product>" << 4 << "a.svg"
                                        << "product type \"x\" has no pages";
    QTest::newRow("other suffix") << book << 4 << "a.gif" << "%1: a picture is written as .png or .svg";
    QTest::newRow("no suffix") << book << 4 << "picture" << "%1: a picture is written as .png or .svg";
    QTest::newRow("negative count") << book << -1 << "a.svg" << "a picture takes a page count from 0 to 400";
    QTest::newRow("huge count") << book << 401 << "a.png" << "a picture takes a page count from 0 to 400";
    QTest::newRow("too many written pages") << QStringLiteral("<product name='p' class='poster' binding='wall'><pages>%1</pages></product>").arg(QStringList(401, QStringLiteral("page")).join(QLatin1Char(',')))
                                            << 1 << "a.png" << "product type \"p\" has 401 pages for 1, too many to draw";
    QTest::newRow("unwritable") << book << 4 << "no-such-dir/a.png" << "cannot write %1";
}

void TestDraw::refusals()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    QFETCH(QString, product);
    QFETCH(int, pageCount);
    QFETCH(QString, fileName);
    QFETCH(QString, problem);
    QDomDocument document;
    QVERIFY(document.setContent(product));
    const PvProductTypeDescription d(document.documentElement());
    QTemporaryDir dir;
    const QString path = dir.filePath(fileName);
    const QString answer = PvProductPicture::write(d, pageCount, path);
    QCOMPARE(answer, problem.contains(QLatin1String("%1")) ? problem.arg(path) : problem);
    QVERIFY(!QFile::exists(path));
}

void TestDraw::hostileSpiral()
{
    // A spiral of absurd size still draws: as many loops as the edge can show.
    QDomDocument document;
    QVERIFY(document.setContent(QStringLiteral(
        "<product name='c' class='calendar' binding='spiral' horizontalPages='false'><pages>cover,run</pages>"
        "<surroundings><surrounding type='calendar'><spirals count='2000000000' hookWidth='-5' hookHeight='2000000000'/>"
        "</surrounding></surroundings></product>")));
    const PvProductTypeDescription d(document.documentElement());
    const PvPictureLayout layout = PvPictureLayout::compute(d, 3);
    QCOMPARE(layout.pages.size(), d.pageTypes(3).size());
    for (const PvPicturePage& page : layout.pages) {
        QVERIFY(!page.spiralLoops.isEmpty());
        QVERIFY(page.spiralLoops.size() < page.rect.width());
    }
    QTemporaryDir dir;
    QCOMPARE(PvProductPicture::write(d, 3, dir.filePath(QStringLiteral("a.png"))), QString());
}

QTEST_MAIN(TestDraw)
#include "tst_draw.moc"
