#include "PvArticleClassPropertyManager.h"
#include "PvFotoBookShape.h"
#include "PvImageFXs.h"
#include "PvOrientation.h"
#include "PvPaperAndBinding.h"
#include "PvProductAlignmentStyle.h"
#include "PvSpaceMagnitude.h"

#include <QCoreApplication>
#include <QTest>
#include <QTranslator>

namespace {
// Marks every text with its context, so that the context and the source text can be checked.
class MarkingTranslator : public QTranslator
{
public:
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        return QString::fromUtf8(context) + QLatin1Char(':') + QString::fromUtf8(source);
    }
    bool isEmpty() const override { return false; }
};
}

class TestValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shapeFromArticle_data();
    void shapeFromArticle();
    void shapeTexts_data();
    void shapeTexts();
    void shapeTextsTranslatedOnFirstUse();
    void paperAndBinding_data();
    void paperAndBinding();
    void enumeratedStyles();
    void articleClassProperties();
};

void TestValues::shapeFromArticle_data()
{
    QTest::addColumn<quint32>("magnitude");
    QTest::addColumn<quint32>("orientation");
    QTest::addColumn<quint32>("shape");
    QTest::newRow("mini whatever the orientation") << 2u << 0u << 1u;
    QTest::newRow("small quadratic") << 8u << 4u << 8u;
    QTest::newRow("small landscape") << 8u << 2u << 0u;
    QTest::newRow("large portrait") << 128u << 1u << 16u;
    QTest::newRow("large quadratic") << 128u << 4u << 0u;
    QTest::newRow("xxl landscape") << 512u << 2u << 512u;
}

void TestValues::shapeFromArticle()
{
    QFETCH(quint32, magnitude);
    QFETCH(quint32, orientation);
    const PvFotoBookShape shape = PvFotoBookShape::createFromArticleProperties(PvSpaceMagnitude(PvSpaceMagnitudeEnum(magnitude)),
                                                                               PvOrientation(PvOrientationEnum(orientation)));
    QTEST(shape.toUnderlying(), "shape");
}

void TestValues::shapeTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("complete");
    QTest::newRow("capitals") << "A4" << QStringLiteral("MIRAL FOTOBUCH Groß (ca. 21 x 28 cm)");
    QTest::newRow("xxl landscape") << "xxl-landscape" << QStringLiteral("MIRAL FOTOBUCH XXL Panorama (ca. 38 x 29 cm)");
    QTest::newRow("unknown") << "UNKONWN" << QStringLiteral("MIRAL FOTOBUCH  ");
    QTest::newRow("combination has no name") << "a4,xl" << QStringLiteral("MIRAL FOTOBUCH  ");
}

void TestValues::shapeTexts()
{
    QFETCH(QString, text);
    QTEST(PvFotoBookShape(text).completeDescription(), "complete");
}

void TestValues::shapeTextsTranslatedOnFirstUse()
{
    const PvFotoBookShape used(PvFotoBookShapeMini);
    QCOMPARE(used.completeDescription(), QStringLiteral("MIRAL FOTOBUCH Mini (ca. 15 x 11 cm)"));
    const PvFotoBookShape fresh(PvFotoBookShapeA4Landscape);
    const PvFotoBookShape named(PvFotoBookShapeXl);
    QCOMPARE(named.sizeDescription(), QStringLiteral("XL"));
    MarkingTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QCOMPARE(fresh.sizeDescription(), QStringLiteral("PvFotoBookShape:Groß Panorama"));
    QCOMPARE(fresh.size(), QStringLiteral("PvFotoBookShape:(ca. 28 x 21 cm)"));
    QCOMPARE(used.sizeDescription(), QStringLiteral("Mini"));
    // The size came with the name, before the translator.
    QCOMPARE(named.size(), QStringLiteral("(ca. 30 x 30 cm)"));
    // The product name stays as first translated, once per process.
    QVERIFY(fresh.completeDescription().startsWith(QLatin1String("MIRAL FOTOBUCH PvFotoBookShape:")));
    QCoreApplication::removeTranslator(&translator);
}

void TestValues::paperAndBinding_data()
{
    QTest::addColumn<quint32>("paper");
    QTest::addColumn<quint32>("binding");
    QTest::addColumn<bool>("indigoLayFlat");
    QTest::addColumn<QString>("description");
    QTest::newRow("digital layflat") << 1u << 2u << true << QStringLiteral("Digitaldruck Matt / Layflat-Bindung");
    QTest::newRow("premium in a combination") << 0x84u << 0x3u << true << QString();
    QTest::newRow("offset layflat") << 4u << 2u << false << QStringLiteral("Offsetdruck Matt / Layflat-Bindung");
    QTest::newRow("digital glued") << 2u << 1u << false << QStringLiteral("Digitaldruck Glänzend / Klebebindung");
    QTest::newRow("no binding name") << 64u << 0u << false << QStringLiteral("Premium Digitaldruck Matt");
}

void TestValues::paperAndBinding()
{
    QFETCH(quint32, paper);
    QFETCH(quint32, binding);
    const PvPaperAndBinding value{ PvPaperType(PvPaperTypeEnum(paper)), PvPageBinding(PvPageBindingEnum(binding)) };
    QTEST(value.isIndigoLayFlat(), "indigoLayFlat");
    QTEST(value.describe(), "description");
}

void TestValues::enumeratedStyles()
{
    QVERIFY(PvImageFXs(QStringLiteral(" Gray ")).isGray());
    QVERIFY(!PvImageFXs(QStringLiteral("none,PRESERVE_ALPHA_CHANNEL")).isGray());

    PvProductAlignmentStyle style(QStringLiteral("card"));
    QVERIFY(style.hasOnlySinglePages());
    style.expandToKeyword(QStringLiteral("bogus"));
    QCOMPARE(style.toUnderlying(), 1u);
    style.expandToKeyword(QStringLiteral("collegeblock"));
    QCOMPARE(style.toUnderlying(), 5u);
    QVERIFY(!style.hasOnlySinglePages());
    QVERIFY(!PvProductAlignmentStyle(QStringLiteral("vario_card")).hasOnlySinglePages());
}

void TestValues::articleClassProperties()
{
    PvArticleClassPropertyManager manager;
    PvArticleClassProperties* photobook = manager.articleClassProperties(PvArticleClass(PvArticleClassPhotobook));
    manager.setPaperType(PvArticleClass(PvArticleClassPrints), PvFotoPaperType(PvFotoPaperTypeSilk));
    manager.setPaperType(PvArticleClass(PvArticleClassPhotobook), PvFotoPaperType(PvFotoPaperTypeMatt));
    QCOMPARE(manager.articleClassProperties(PvArticleClass(PvArticleClassPhotobook)), photobook);
    QCOMPARE(photobook->paperType().toUnderlying(), quint32(PvFotoPaperTypeMatt));
    QCOMPARE(manager.paperType(PvArticleClass(PvArticleClassPrints)).toUnderlying(), quint32(PvFotoPaperTypeSilk));
}

QTEST_GUILESS_MAIN(TestValues)
#include "tst_values.moc"
