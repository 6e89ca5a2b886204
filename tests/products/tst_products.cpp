#include "PvProductTypeConfigRegistryAbstract.h"
#include "PvProductTypeDescription.h"

#include <QRegularExpression>
#include <QTest>

#include <functional>
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

QString flag(bool value)
{
    return QLatin1String(value ? "true" : "false");
}

using Field = std::function<QString(const PvProductTypeDescription&)>;
const QHash<QString, Field>& fieldTable()
{
    static const QHash<QString, Field> table {
        { QStringLiteral("spine"), [](const PvProductTypeDescription& d) -> QString { return flag(d.hasSpine()) + u'/' + flag(d.hasTextOnSpine()) + u'/' + flag(d.mustPaintMiralLogoOnSpine()); } },
        { QStringLiteral("border/shadow"), [](const PvProductTypeDescription& d) -> QString { return flag(d.canHaveBorder()) + u'/' + flag(d.canHaveShadow()); } },
        { QStringLiteral("horizontal"), [](const PvProductTypeDescription& d) -> QString { return flag(d.horizontalPages()); } },
        { QStringLiteral("fold margin"), [](const PvProductTypeDescription& d) -> QString { return QString::number(d.foldSafetyMargin()); } },
        { QStringLiteral("tilt"), [](const PvProductTypeDescription& d) -> QString { return QString::number(d.tiltAngle()); } },
        { QStringLiteral("page numbers"), [](const PvProductTypeDescription& d) -> QString {
             return QStringLiteral("%1/%2/%3").arg(d.pageNumberHorizontalIndent().value()).arg(d.pageNumberVerticalIndent().value()).arg(d.pageNumberFontSize());
         } },
        { QStringLiteral("numbering"), [](const PvProductTypeDescription& d) -> QString { return joined(d.productionNumbering()); } },
        { QStringLiteral("with content"), [](const PvProductTypeDescription& d) -> QString { return joined(d.pagesWithContent()); } },
        { QStringLiteral("abstract pages"), [](const PvProductTypeDescription& d) -> QString { return QString::number(d.countAbstractPages()); } },
        { QStringLiteral("price list"), [](const PvProductTypeDescription& d) -> QString { return d.priceListCategory(); } },
        { QStringLiteral("replacement"), [](const PvProductTypeDescription& d) -> QString { return d.replacedByProduct().name() + u'/' + d.conversionStrategy().encodeCSV(); } },
        { QStringLiteral("variants"), [](const PvProductTypeDescription& d) -> QString { return QString::number(d.variants().size()) + u'/' + d.variants().defaultVariant().id; } },
        { QStringLiteral("barcodes"), [](const PvProductTypeDescription& d) -> QString { return QString::number(d.barcodeDefinitions().size()); } },
        { QStringLiteral("extra pages"), [](const PvProductTypeDescription& d) -> QString { return QString::number(d.extraProductionPageCount()); } },
        { QStringLiteral("redirects"), [](const PvProductTypeDescription& d) -> QString {
             return QStringLiteral("%1,%2,%3/%4").arg(d.contentDropRedirect(3)).arg(d.contentDropRedirect(5)).arg(d.tiltRedirectForSourcePage(2).size()).arg(d.tiltRedirectForTargetPage(2).size());
         } },
        { QStringLiteral("background on top page"), [](const PvProductTypeDescription& d) -> QString {
             return d.findDefaultTemplate(PvDefaultTemplateKey({ PvPageTypePage, PvPageAlignmentTop }, PvDefaultTemplateTypeBackground));
         } },
        { QStringLiteral("binding shade"), [](const PvProductTypeDescription& d) -> QString { return flag(d.hasSurroundingWithBindingShade()); } },
        { QStringLiteral("3D mesh"), [](const PvProductTypeDescription& d) -> QString { return d.preview3DDescription().mesh(); } },
        { QStringLiteral("group"), [](const PvProductTypeDescription& d) -> QString { return d.classification().group().value(); } },
    };
    return table;
}
}

class TestProducts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_registry = std::make_unique<FixtureRegistry>(); }
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }
    void pageTypes_data();
    void pageTypes();
    void pageAlignment_data();
    void pageAlignment();
    void productionNumbering_data();
    void productionNumbering();
    void fields_data();
    void fields();
    void findProducts_data();
    void findProducts();
    void classification_data();
    void classification();
    void sortPageFiles_data();
    void sortPageFiles();

private:
    std::unique_ptr<FixtureRegistry> m_registry;
};

void TestProducts::pageTypes_data()
{
    QTest::addColumn<QString>("product");
    QTest::addColumn<int>("pageCount");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<int>("warnings");

    const QString year = QStringLiteral("cover,page,") + QStringList(24, QStringLiteral("month_page")).join(u',');
    QTest::newRow("spine and left-right run") << "book-spine" << 4 << "cover_back,spine,cover_front,page_left,page_right,page_left,page_right" << 0;
    QTest::newRow("no pages for the run") << "book-spine" << 0 << "cover_back,spine,cover_front" << 0;
    QTest::newRow("negative count") << "book-spine" << -5 << "cover_back,spine,cover_front" << 0;
    QTest::newRow("jacket; cover counts against run") << "book-jacket" << 3
                                                     << "jacket_flap_left,jacket_back,jacket_front,jacket_flap_right,cover_inside_front,cover,page,page,cover_inside_back" << 0;
    QTest::newRow("cover in a zero-page project") << "book-jacket" << 0
                                                  << "jacket_flap_left,jacket_back,jacket_front,jacket_flap_right,cover_inside_front,cover,cover_inside_back" << 0;
    QTest::newRow("pairs run") << "book-pano" << 5 << "opening_page,panorama_page,page_left,page_left,page_right,page_right,page_left" << 0;
    QTest::newRow("year run ignores the count") << "calendar-year" << 2 << year << 0;
    QTest::newRow("year run, large count") << "calendar-year" << 1000 << year << 0;
    QTest::newRow("right-left run") << "card-vario" << 3 << "page_right,page_left,page_right" << 0;
    QTest::newRow("only an empty run") << "card-vario" << 0 << "page" << 0;
    QTest::newRow("no pages element") << "book-bare" << 5 << "page" << 1;
    QTest::newRow("empty and unknown names") << "book-bad-pages" << 2 << "cover,page_right" << 2;
    QTest::newRow("unknown product") << "nowhere" << 3 << "page" << 0;
}

void TestProducts::pageTypes()
{
    QFETCH(QString, product);
    QFETCH(int, pageCount);
    QFETCH(QString, expected);
    QFETCH(int, warnings);
    for (int i = 0; i < warnings; ++i)
        QTest::ignoreMessage(QtWarningMsg, illegalPage);
    QCOMPARE(values(m_registry->pageTypes(PvProductType(product), pageCount)), values(PvPageTypeList(expected)));
}

void TestProducts::pageAlignment_data()
{
    QTest::addColumn<QString>("product");
    QTest::addColumn<QString>("pages"); // empty: the product's own for 4 pages
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("expected");

    const QStringList spine = QStringLiteral("left,center,right,right,left").split(u',');
    for (int i = 0; i < spine.size(); ++i)
        QTest::addRow("spine book %d", i) << "book-spine" << "" << i << spine.at(i);
    const QStringList jacket = QStringLiteral("top,middle,bottom,bottom,top").split(u',');
    for (int i = 0; i < jacket.size(); ++i)
        QTest::addRow("stacked jacket book %d", i) << "book-jacket" << "" << i << jacket.at(i);
    const QStringList pano = QStringLiteral("left,left,right,right,left,right").split(u',');
    for (int i = 0; i < pano.size(); ++i)
        QTest::addRow("panorama with opening %d", i) << "book-pano" << "" << i << pano.at(i);
    QTest::newRow("panorama without opening") << "book-pano" << "panorama_page,page" << 1 << "right";
    QTest::newRow("cover without spine") << "calendar-year" << "" << 0 << "top";
    QTest::newRow("stacked calendar page") << "calendar-year" << "" << 1 << "bottom";
    QTest::newRow("stacked card even") << "card-folded" << "" << 2 << "top";
    QTest::newRow("stacked card odd") << "card-folded" << "" << 1 << "bottom";
    QTest::newRow("vario card") << "card-vario" << "" << 1 << "center";
    QTest::newRow("combined style: usual rule") << "card-mixed-style" << "" << 0 << "left";
    QTest::newRow("wall product") << "poster-30x40" << "" << 0 << "right";
    QTest::newRow("index beyond the list") << "book-spine" << "" << 99 << "right";
    QTest::newRow("negative index") << "book-spine" << "" << -2 << "left";
}

void TestProducts::pageAlignment()
{
    QFETCH(QString, product);
    QFETCH(QString, pages);
    QFETCH(int, index);
    QFETCH(QString, expected);
    const PvProductType type(product);
    const PvPageTypeList list = pages.isEmpty() ? m_registry->pageTypes(type, 4) : PvPageTypeList(pages);
    QCOMPARE(m_registry->description(type)->pageAlignment(list, index).encodeCSV(), expected);
}

void TestProducts::productionNumbering_data()
{
    QTest::addColumn<QString>("product");
    QTest::addColumn<int>("pageCount");
    QTest::addColumn<QString>("expected");
    QTest::newRow("continued") << "book-spine" << 5 << "3,5,7,8,9";
    QTest::newRow("cut") << "book-spine" << 2 << "3,5";
    QTest::newRow("no pages") << "book-spine" << 0 << "";
    QTest::newRow("negative") << "book-spine" << -3 << "";
    QTest::newRow("none stored") << "book-bare" << 3 << "1,2,3";
    QTest::newRow("unknown product") << "nowhere" << 2 << "1,2";
}

void TestProducts::productionNumbering()
{
    QFETCH(QString, product);
    QFETCH(int, pageCount);
    QFETCH(QString, expected);
    QCOMPARE(joined(m_registry->productionNumberingList(PvProductType(product), pageCount)), expected);
}

void TestProducts::fields_data()
{
    QTest::addColumn<QString>("product");
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* product, const char* field, const char* expected) {
        QTest::addRow("%s: %s", product, field) << product << field << expected;
    };
    row("book-full", "spine", "true/false/false");
    row("book-full", "border/shadow", "true/true");
    row("book-full", "horizontal", "false");
    row("book-full", "fold margin", "12");
    row("book-full", "tilt", "90");
    row("book-full", "page numbers", "40.5/30/11");
    row("book-full", "numbering", "2,1");
    row("book-full", "with content", "1,3");
    row("book-full", "abstract pages", "6");
    row("book-full", "price list", "books-premium");
    row("book-full", "replacement", "book-spine/RewriteOneToTwoPages");
    row("book-full", "variants", "2/gold");
    row("book-full", "barcodes", "1");
    row("book-full", "extra pages", "3");
    row("book-full", "redirects", "1,5,1/0");
    row("book-full", "background on top page", "301");
    row("book-full", "binding shade", "true");
    row("book-full", "3D mesh", "book.obj");
    row("book-full", "group", "Buch");
    row("book-spine", "spine", "true/true/true");
    row("book-spine", "numbering", "3,5,7");
    row("book-jacket", "spine", "true/false/false");
    row("poster-30x40", "border/shadow", "false/false");
    row("book-bare", "spine", "false/false/false");
    row("book-bare", "border/shadow", "true/true");
    row("book-bare", "horizontal", "true");
    row("book-bare", "fold margin", "-1");
    row("book-bare", "tilt", "270");
    row("book-bare", "page numbers", "50/50/24");
    row("book-bare", "abstract pages", "1");
    row("book-bare", "background on top page", "");
    row("nowhere", "tilt", "0");
    row("nowhere", "page numbers", "0/0/0");
    row("nowhere", "horizontal", "false");
}

void TestProducts::fields()
{
    QFETCH(QString, product);
    QFETCH(QString, field);
    QFETCH(QString, expected);
    QVERIFY(fieldTable().contains(field));
    QCOMPARE(fieldTable().value(field)(*m_registry->description(PvProductType(product))), expected);
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
    QTest::newRow("posters") << "Poster" << "poster-20x30,poster-30x40" << "poster" << "poster-20x30,poster-30x40";
    QTest::newRow("canvas") << "Leinwand" << "canvas-40x60" << "poster,canvas" << "canvas-40x60,poster-20x30,poster-30x40";
    QTest::newRow("book") << "Buch" << "book-full" << "calendar" << "calendar-year";
    QTest::newRow("unknown group") << "Vase" << "" << "prints" << "";
}

void TestProducts::classification()
{
    QFETCH(QString, group);
    QFETCH(QString, inGroup);
    QFETCH(QString, classes);
    QFETCH(QString, managed);
    QCOMPARE(sortedNames(m_registry->findAllIn(PvProductClassificationGroup(group))), inGroup);
    const PvProductClassificationManager manager = m_registry->createProductClassifationManager(PvArticleClass(classes));
    PvProductTypeList found;
    for (const PvProductClassification& classification : manager.classifications())
        found.append(classification.productType());
    QCOMPARE(sortedNames(found), managed);
}

void TestProducts::sortPageFiles_data()
{
    QTest::addColumn<QString>("product");
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QStringList>("expected");
    const auto list = [](const char* names) { return QString::fromLatin1(names).split(u',', Qt::SkipEmptyParts); };
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

QTEST_GUILESS_MAIN(TestProducts)
#include "tst_products.moc"
