#include "PvProductTypeConfigRegistryAbstract.h"
#include "PvProductTypeDescription.h"

#include <QRegularExpression>
#include <QTest>

#include <memory>

namespace {
// Every product file of the fixture directory; one of them holds a malformed redirect.
class FixtureRegistry : public PvProductTypeConfigRegistryAbstract
{
public:
    FixtureRegistry()
    {
        QTest::ignoreMessage(QtWarningMsg, "parse error");
        load();
    }
    QList<QDir> supervisedDirs() const override { return { QDir(QStringLiteral(PV_TESTDATA)) }; }
};

const char* const illegalPage = "Illegaler Seitentyp in der Produktbeschreibung.";

QList<quint32> values(const PvPageTypeList& pages)
{
    QList<quint32> result;
    for (const PvPageType& page : pages)
        result.append(page.toUnderlying());
    return result;
}

template <typename List>
QString joined(const List& numbers)
{
    QStringList texts;
    for (const auto& number : numbers)
        texts.append(QString::number(number));
    return texts.join(u',');
}

template <typename Types>
QString sortedNames(const Types& types)
{
    QStringList names;
    for (const PvProductType& type : types)
        names.append(type.name());
    names.sort();
    return names.join(u',');
}

QStringList list(const char* text)
{
    return QString::fromLatin1(text).split(u',', Qt::SkipEmptyParts);
}

// What a product file sets, in one line: flags (spine, text on spine, logo, border, shadow,
// horizontal), fold margin, tilt, page numbers, numbering, pages with content, abstract
// pages, price list, replacement, default variant, barcodes, extra pages, redirects of
// pages 3 and 5 and tilt redirects from 2, background of a top page, shade, mesh, group,
// editor flags (assistant, convertable, design button, rotate and full backgrounds, tilt of
// pages 2 and 3, content, exact layouts), start page.
QString summary(const PvProductTypeDescription& d)
{
    const auto flags = [](std::initializer_list<bool> values) {
        QString text;
        for (const bool value : values)
            text.append(QLatin1Char(value ? '1' : '0'));
        return text;
    };
    const QString background = d.findDefaultTemplate(PvDefaultTemplateKey({ PvPageTypePage, PvPageAlignmentTop }, PvDefaultTemplateTypeBackground));
    return QStringList {
        flags({ d.hasSpine(), d.hasTextOnSpine(), d.mustPaintMiralLogoOnSpine(), d.canHaveBorder(), d.canHaveShadow(), d.horizontalPages() }),
        QString::number(d.foldSafetyMargin()), QString::number(d.tiltAngle()),
        QStringLiteral("%1/%2/%3").arg(d.pageNumberHorizontalIndent().value()).arg(d.pageNumberVerticalIndent().value()).arg(d.pageNumberFontSize()),
        joined(d.productionNumbering()), joined(d.pagesWithContent()), QString::number(d.countAbstractPages()),
        d.priceListCategory(), d.replacedByProduct().name(), d.conversionStrategy().encodeCSV(), d.variants().defaultVariant().id,
        QString::number(d.barcodeDefinitions().size()), QString::number(d.extraProductionPageCount()),
        joined(QList<qsizetype> { d.contentDropRedirect(3), d.contentDropRedirect(5), d.tiltRedirectForSourcePage(2).size() }),
        background, flags({ d.hasSurroundingWithBindingShade() }), d.preview3DDescription().mesh(), d.classification().group().value(),
        flags({ d.hasAssistant(), d.isConvertable(), d.showChangeDesignButton(), d.canRotateBackgrounds(), d.putFullBackgroundOnEachPage(),
                d.userPageTiltAllowed(2), d.userPageTiltAllowed(3), d.supportsJigType(PvJigTypeContent), d.requiresExactArticle(PvJigTypeLayout) }),
        QString::number(d.editorStartPage()),
    }.join(u'|');
}
}

class TestProducts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_registry = std::make_unique<FixtureRegistry>(); }
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }
    void pageLists_data();
    void pageLists();
    void pageAlignment_data();
    void pageAlignment();
    void fields_data();
    void fields();
    void findProducts_data();
    void findProducts();
    void classification_data();
    void classification();
    void sortPageFiles_data();
    void sortPageFiles();
    void typicalRequest_data();
    void typicalRequest();

private:
    std::unique_ptr<FixtureRegistry> m_registry;
};

void TestProducts::pageLists_data()
{
    QTest::addColumn<QString>("product");
    QTest::addColumn<int>("pageCount");
    QTest::addColumn<QString>("pages");
    QTest::addColumn<QString>("numbering");
    QTest::addColumn<int>("warnings");

    const QString year = QStringLiteral("cover,page,") + QStringList(24, QStringLiteral("month_page")).join(u',');
    QTest::newRow("spine and left-right run") << "book-spine" << 4 << "cover_back,spine,cover_front,page_left,page_right,page_left,page_right" << "3,5,7,8" << 0;
    QTest::newRow("numbering cut") << "book-spine" << 2 << "cover_back,spine,cover_front,page_left,page_right" << "3,5" << 0;
    QTest::newRow("no pages for the run") << "book-spine" << 0 << "cover_back,spine,cover_front" << "" << 0;
    QTest::newRow("negative count") << "book-spine" << -5 << "cover_back,spine,cover_front" << "" << 0;
    QTest::newRow("jacket; cover counts against run") << "book-jacket" << 3
                                                     << "jacket_flap_left,jacket_back,jacket_front,jacket_flap_right,cover_inside_front,cover,page,page,cover_inside_back" << "1,2,3" << 0;
    QTest::newRow("cover in a zero-page project") << "book-jacket" << 0
                                                  << "jacket_flap_left,jacket_back,jacket_front,jacket_flap_right,cover_inside_front,cover,cover_inside_back" << "" << 0;
    QTest::newRow("pairs run") << "book-pano" << 5 << "opening_page,panorama_page,page_left,page_left,page_right,page_right,page_left" << "1,2,3,4,5" << 0;
    QTest::newRow("year run ignores the count") << "calendar-year" << 2 << year << "3,1" << 0;
    QTest::newRow("right-left run") << "card-vario" << 3 << "page_right,page_left,page_right" << "1,2,3" << 0;
    QTest::newRow("only an empty run") << "card-vario" << 0 << "page" << "" << 0;
    QTest::newRow("no pages element") << "book-bare" << 5 << "page" << "1,2,3,4,5" << 1;
    QTest::newRow("empty and unknown names") << "book-bad-pages" << 2 << "cover,page_right" << "1,2" << 2;
    QTest::newRow("unknown product") << "nowhere" << 3 << "page" << "1,2,3" << 0;
}

void TestProducts::pageLists()
{
    QFETCH(QString, product);
    QFETCH(int, pageCount);
    QFETCH(QString, pages);
    QFETCH(QString, numbering);
    QFETCH(int, warnings);
    for (int i = 0; i < warnings; ++i)
        QTest::ignoreMessage(QtWarningMsg, illegalPage);
    QCOMPARE(values(m_registry->pageTypes(PvProductType(product), pageCount)), values(PvPageTypeList(pages)));
    const QList<int> numbers = m_registry->productionNumberingList(PvProductType(product), pageCount);
    QCOMPARE(joined(numbers), numbering);
    QCOMPARE(numbers.size(), std::max(pageCount, 0));
}

void TestProducts::pageAlignment_data()
{
    QTest::addColumn<QString>("product");
    QTest::addColumn<QString>("pages"); // empty: the product's own for 4 pages
    QTest::addColumn<int>("firstIndex");
    QTest::addColumn<QString>("expected");
    QTest::newRow("spine book") << "book-spine" << "" << 0 << "left,center,right,right,left";
    QTest::newRow("stacked jacket book") << "book-jacket" << "" << 0 << "top,middle,bottom,bottom,top";
    QTest::newRow("panorama with opening") << "book-pano" << "" << 0 << "left,left,right,right,left,right";
    QTest::newRow("panorama without opening") << "book-pano" << "panorama_page,page,page,page,page" << 0 << "left,right,right,right,left";
    QTest::newRow("cover without spine") << "calendar-year" << "" << 0 << "top,bottom,top";
    QTest::newRow("folded card") << "card-folded" << "" << 0 << "top,bottom,top";
    QTest::newRow("vario card") << "card-vario" << "" << 0 << "center,center";
    QTest::newRow("combined style: usual rules") << "card-mixed-style" << "" << 0 << "left,right,left";
    QTest::newRow("wall product") << "poster-30x40" << "" << 0 << "right,right";
    QTest::newRow("beyond the list") << "book-spine" << "" << 98 << "left,right";
    QTest::newRow("negative index") << "book-spine" << "" << -2 << "left,right";
}

void TestProducts::pageAlignment()
{
    QFETCH(QString, product);
    QFETCH(QString, pages);
    QFETCH(int, firstIndex);
    QFETCH(QString, expected);
    const PvProductType type(product);
    const PvPageTypeList list = pages.isEmpty() ? m_registry->pageTypes(type, 4) : PvPageTypeList(pages);
    QStringList found;
    for (int index = firstIndex; found.size() < expected.count(u',') + 1; ++index)
        found.append(m_registry->description(type)->pageAlignment(list, index).encodeCSV());
    QCOMPARE(found.join(u','), expected);
}

void TestProducts::fields_data()
{
    QTest::addColumn<QString>("product");
    QTest::addColumn<QString>("expected");
    QTest::newRow("every optional child") << "book-full" << "100110|12|90|40.5/30/11|2,1|1,3|6|books-premium|book-spine|RewriteOneToTwoPages|gold|1|3|1,5,1|301|1|book.obj|Buch|101100111|2";
    QTest::newRow("nothing but identity") << "book-bare" << "000111|-1|270|50/50/24|||1|||||0|0|3,5,0||0|||010011110|0";
    QTest::newRow("spine with text and logo") << "book-spine" << "111111|-1|270|50/50/24|3,5,7||4|||||0|0|3,5,0||0|||010011110|0";
    QTest::newRow("grayscale wall decor") << "poster-30x40" << "000001|-1|270|50/50/24|||1|||||0|0|3,5,0||0||Poster|010011110|0";
    QTest::newRow("unknown product") << "nowhere" << "000000|0|0|0/0/0|||0|||||0|0|3,5,0||0|||010011110|0";
}

void TestProducts::fields()
{
    QFETCH(QString, product);
    QFETCH(QString, expected);
    QCOMPARE(summary(*m_registry->description(PvProductType(product))), expected);
}

void TestProducts::findProducts_data()
{
    QTest::addColumn<QString>("classes");
    QTest::addColumn<QString>("covers");
    QTest::addColumn<QString>("expected");
    QTest::newRow("no filter: empty, meaning all") << "" << "" << "";
    QTest::newRow("class") << "photobook" << "" << "book-bad-pages,book-bare,book-full,book-jacket,book-no-content,book-pano,book-spine";
    QTest::newRow("class and cover") << "photobook" << "layflat" << "book-jacket,book-pano";
    QTest::newRow("two covers") << "" << "wall,spiral" << "calendar-year,canvas-40x60,poster-20x30,poster-30x40";
    QTest::newRow("two classes, one cover") << "photobook,card" << "folded" << "card-folded";
    QTest::newRow("nothing matches: empty too") << "prints" << "" << "";
}

void TestProducts::findProducts()
{
    QFETCH(QString, classes);
    QFETCH(QString, covers);
    QFETCH(QString, expected);
    const auto found = m_registry->findProducts(PvEmptyMeansAllSet<PvArticleClass>::decompose(PvArticleClass(classes)),
                                                PvEmptyMeansAllSet<PvCoverType>::decompose(PvCoverType(covers)));
    QCOMPARE(sortedNames(found), expected);
}

void TestProducts::classification_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("inGroup");
    QTest::addColumn<QString>("classes");
    QTest::addColumn<QString>("managed");
    QTest::addColumn<QString>("posterClosestToCanvas"); // the smallest when the canvas is not managed
    QTest::newRow("posters") << "Poster" << "poster-20x30,poster-30x40" << "poster" << "poster-20x30,poster-30x40" << "poster-20x30";
    QTest::newRow("canvas") << "Leinwand" << "canvas-40x60" << "poster,canvas" << "canvas-40x60,poster-20x30,poster-30x40" << "poster-30x40";
    QTest::newRow("book") << "Buch" << "book-full" << "calendar" << "calendar-year" << "";
    QTest::newRow("unknown group") << "Vase" << "" << "prints" << "" << "";
}

void TestProducts::classification()
{
    QFETCH(QString, group);
    QFETCH(QString, inGroup);
    QFETCH(QString, classes);
    QFETCH(QString, managed);
    QFETCH(QString, posterClosestToCanvas);
    QCOMPARE(sortedNames(m_registry->findAllIn(PvProductClassificationGroup(group))), inGroup);
    const PvProductClassificationManager manager = m_registry->createProductClassifationManager(PvArticleClass(classes));
    PvProductTypeList found;
    for (const PvProductClassification& classification : manager.classifications())
        found.append(classification.productType());
    QCOMPARE(sortedNames(found), managed);
    QCOMPARE(manager.closestProduct(PvProductType(QStringLiteral("canvas-40x60")), QStringLiteral("Poster")).name(), posterClosestToCanvas);
}

void TestProducts::sortPageFiles_data()
{
    QTest::addColumn<QString>("product");
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("numbering 3,1,2") << "calendar-year" << list("a,b,c") << list("b,c,a");
    QTest::newRow("ties keep positions") << "book-full" << list("a,b,c") << list("b,a,c");
    QTest::newRow("rising numbering") << "book-spine" << list("a,b,c") << list("a,b,c");
    QTest::newRow("unknown type") << "nowhere" << list("c,a") << list("c,a");
    QTest::newRow("invalid type") << "" << list("c,a") << list("c,a");
    QTest::newRow("empty list") << "calendar-year" << QStringList() << QStringList();
}

void TestProducts::sortPageFiles()
{
    QFETCH(QString, product);
    QFETCH(QStringList, files);
    QFETCH(QStringList, expected);
    QCOMPARE(m_registry->sortPageFileNameListInInternOrder(PvProductType(product), files), expected);
}

void TestProducts::typicalRequest_data()
{
    QTest::addColumn<QString>("product");
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("expected"); // alignment|content allowed|background categories|limited|only one
    QTest::newRow("back cover") << "book-full" << 0 << "top|0||0|0";
    QTest::newRow("spine") << "book-full" << 1 << "middle|1||0|0";
    QTest::newRow("inner page with content") << "book-full" << 3 << "bottom|1|Sommer,Winter|1|0";
    QTest::newRow("inner page") << "book-full" << 4 << "top|0|Sommer,Winter|1|0";
    QTest::newRow("front cover after the run") << "book-full" << 28 << "top|0|Sommer|1|1";
    QTest::newRow("content disabled") << "book-no-content" << 1 << "right|0|Sommer|1|1";
    QTest::newRow("no limits") << "book-spine" << 5 << "right|1||0|0";
}

void TestProducts::typicalRequest()
{
    QFETCH(QString, product);
    QFETCH(int, page);
    QFETCH(QString, expected);
    const PvProductType type(product);
    const PvPageTypeList pages = m_registry->pageTypes(type, 24);
    QVERIFY(page < pages.size());
    const PvProductTypeDescription* description = m_registry->description(type);
    QStringList categories;
    for (const PvThematicCategory& category : m_registry->allowedJigCategories(type, pages.at(page), PvJigTypeBackground))
        categories.append(category.internalName());
    categories.sort();
    const QString found = QStringList { description->pageAlignment(pages, page).encodeCSV(), QString::number(description->contentAllowedOnPage(page)),
                                        categories.join(u','), QString::number(m_registry->limitJigCategories(type, pages.at(page), PvJigTypeBackground)),
                                        QString::number(m_registry->thereIsOnlyOneAllowedBackgroundCategory(type, pages.at(page))) }
                              .join(u'|');
    QCOMPARE(found, expected);
}

QTEST_GUILESS_MAIN(TestProducts)
#include "tst_products.moc"
