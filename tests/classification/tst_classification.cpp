#include "PvProductClassificationManager.h"
#include "PvXMLLoader.h"

#include <QDomDocument>
#include <QTest>

namespace {
PvProductClassification classification(const QString& cm, const QString& inch)
{
    QDomDocument document;
    document.setContent(QStringLiteral("<product name='p'><classification group='Poster' cm='%1' inch='%2'/></product>").arg(cm, inch));
    return PvProductClassification(document.documentElement());
}

PvProductClassificationManager managerFromFile()
{
    QList<PvProductClassification> classifications;
    const QDomElement products = PvXMLLoader::loadDocumentElement(QStringLiteral(PV_TESTDATA "/products.xml"));
    for (QDomElement product = products.firstChildElement(); !product.isNull(); product = product.nextSiblingElement())
        classifications.append(PvProductClassification(product));
    return PvProductClassificationManager(classifications);
}

const QString alu = QStringLiteral("Foto auf Alu-Dibond");
const PvProductClassificationGroup poster(QStringLiteral("Poster"));
}

class TestClassification : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sizes_data();
    void sizes();
    void groups_data();
    void groups();
    void manager();
    void closestProduct_data();
    void closestProduct();
};

void TestClassification::sizes_data()
{
    QTest::addColumn<QString>("cm");
    QTest::addColumn<QString>("inch");
    QTest::addColumn<QString>("sizes"); // centimetres, inches, area, diagonal

    QTest::newRow("lower-case x") << "30x40" << "12x16" << "30x40 12x16 1200 50";
    QTest::newRow("upper-case X and blanks") << " 30 X 40 " << "12 X 16" << "30x40 12x16 1200 50";
    QTest::newRow("one number: inch not parsed") << "30" << "12x16" << "0x0 -1x-1 0 0";
    QTest::newRow("three numbers") << "30x40x50" << "12x16" << "0x0 -1x-1 0 0";
    QTest::newRow("empty parts dropped") << "x30xx40x" << "12" << "30x40 -1x-1 1200 50";
    QTest::newRow("word counts 0") << "ax40" << "" << "0x40 -1x-1 0 40";
    QTest::newRow("no overflow") << "2147483647x2147483647" << "" << "2147483647x2147483647 -1x-1 4611686014132420609 3.037e+09";
}

void TestClassification::sizes()
{
    QFETCH(QString, cm);
    QFETCH(QString, inch);
    QFETCH(QString, sizes);

    const PvProductClassification c = classification(cm, inch);
    const QSize cmSize = c.dimensions(PvCentimetre);
    const QSize inchSize = c.dimensions(PvInch);
    QCOMPARE(QStringLiteral("%1x%2 %3x%4 %5 %6").arg(cmSize.width()).arg(cmSize.height()).arg(inchSize.width()).arg(inchSize.height()).arg(c.areaSize()).arg(c.sizeDiagonal()), sizes);
    QCOMPARE(c.sizeName(PvInch), inch);
    QCOMPARE(c.visibleName(PvPoint), cm);
    QCOMPARE(c.sizeNameWithUnit(PvInch), inch + QStringLiteral(" Zoll"));
}

void TestClassification::groups_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("description");
    QTest::addColumn<bool>("customFormat");

    QTest::newRow("poster") << "Poster" << "Poster" << false;
    QTest::newRow("two values, one text") << "Deko-Poster" << "Poster" << false;
    QTest::newRow("white-listed") << "Gallery Print digital" << "Foto als Gallery Print" << true;
    QTest::newRow("umlaut in text") << "Premium Poster (glossy)" << "Premium Poster Fotopapier Glänzend" << false;
    QTest::newRow("last entry") << "MLP" << "Photo Streetmap Poster" << false;
    QTest::newRow("case matters") << "gallery print digital" << "" << false;
    QTest::newRow("empty") << "" << "" << false;
}

void TestClassification::groups()
{
    QFETCH(QString, value);
    QFETCH(QString, description);
    QFETCH(bool, customFormat);

    const PvProductClassificationGroup group(value);
    QCOMPARE(group.visibleDescription(), description);
    QCOMPARE(group.canCustomFormat(), customFormat);
    QCOMPARE(group.canCustomFormat(value), customFormat);
    QVERIFY(group.canCustomFormat(QStringLiteral("Poster hinter Acryl-Glas")));
    QVERIFY(!group.canCustomFormat(QStringLiteral("Poster")));
}

void TestClassification::manager()
{
    PvLookUpTable<QString, QString> table;
    PvProductClassificationGroup::initDescriptions(&table);
    PvProductClassificationGroup::initDescriptions(nullptr);
    QCOMPARE(table.size(), 24);

    const PvProductClassificationManager manager = managerFromFile();
    const PvProductClassificationGroup repaired(QStringLiteral("Foto auf Alu-Dibond Glänzend"));
    QCOMPARE(manager.classificationGroups(), (QList<PvProductClassificationGroup> { poster, PvProductClassificationGroup(alu), repaired }));
    QCOMPARE(manager.classificationGroup(PvProductType(QStringLiteral("glanz-50x50"))), repaired);
    QCOMPARE(manager.classificationGroup(PvProductType(QStringLiteral("none"))), PvProductClassificationGroup());
    QCOMPARE(manager.classificationNames(poster, PvCentimetre), QStringList({ QStringLiteral("30x40"), QStringLiteral("40 X 30"), QStringLiteral("20x30") }));
    QCOMPARE(manager.classificationNames(poster, PvInch).size(), 4);
    QCOMPARE(manager.classificationName(PvProductType(QStringLiteral("alu-60x80")), PvInch), QStringLiteral("24x32"));
    QCOMPARE(manager.type(poster, QStringLiteral("30x40"), PvCentimetre).name(), QStringLiteral("poster-30x40"));
    QCOMPARE(manager.type(poster, QStringLiteral("11x16"), PvInch).name(), QStringLiteral("poster-30x40-deko"));
    QVERIFY(!manager.type(poster, QStringLiteral("12x16"), PvCentimetre).isValid());
    QVERIFY(!manager.type(PvProductClassificationGroup(alu), QStringLiteral("30x40"), PvCentimetre).isValid());
}

void TestClassification::closestProduct_data()
{
    QTest::addColumn<QString>("product");
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("closest");

    QTest::newRow("nearest diagonal") << "poster-30x40" << alu << "alu-30x45";
    QTest::newRow("tie: earlier wins") << "alu-30x45" << "Poster" << "poster-30x40";
    QTest::newRow("itself in own group") << "alu-60x80" << alu << "alu-60x80";
    QTest::newRow("unknown product: smallest") << "none" << alu << "alu-20x30";
    QTest::newRow("unknown group") << "poster-30x40" << "poster" << "";
}

void TestClassification::closestProduct()
{
    QFETCH(QString, product);
    QFETCH(QString, group);
    QFETCH(QString, closest);

    QCOMPARE(managerFromFile().closestProduct(PvProductType(product), group), PvProductType(closest));
}

QTEST_GUILESS_MAIN(TestClassification)
#include "tst_classification.moc"
