#include "PvProductTypeDescription.h"
#include "PvXMLLoader.h"

#include <QDomDocument>
#include <QTest>

namespace {
QDomElement product(const QString& attributes)
{
    QDomDocument document;
    document.setContent(QStringLiteral("<products><product %1/></products>").arg(attributes));
    return document.documentElement().firstChildElement(QStringLiteral("product"));
}
}

class TestDescription : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void identity_data();
    void identity();
    void defaults();
    void fromFile();
};

void TestDescription::identity_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<QString>("name");
    QTest::addColumn<quint64>("articleClass");
    QTest::addColumn<quint32>("coverType");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<bool>("simplex");
    QTest::addColumn<bool>("varioCard");
    QTest::addColumn<bool>("easyCard");

    QTest::newRow("hardcover book") << "name=' book-a4 ' class='photobook' binding='hardcover'" << "book-a4" << quint64(1) << 1u << true << false << false << false;
    QTest::newRow("two classes give none") << "name='x' class='photobook,calendar' binding='hardcover'" << "x" << quint64(0) << 1u << false << false << false << false;
    QTest::newRow("unknown class") << "name='x' class='vase' binding='hardcover'" << "x" << quint64(0) << 1u << false << false << false << false;
    QTest::newRow("class missing") << "name='x' binding='hardcover'" << "x" << quint64(0) << 1u << false << false << false << false;
    QTest::newRow("binding missing") << "name='x' class='poster'" << "x" << quint64(4) << 0u << false << false << false << false;
    QTest::newRow("prints need no binding") << "name='x' class='prints'" << "x" << (quint64(1) << 44) << 0u << true << false << false << false;
    QTest::newRow("unknown binding") << "name='x' class='poster' binding='scroll'" << "x" << quint64(4) << 0u << false << false << false << false;
    QTest::newRow("easy card") << "name='c' class='card' binding='folded'" << "c" << quint64(8) << 256u << true << true << false << true;
    QTest::newRow("vario card") << "name='c' class='CARD' binding='single_sheet' isVario='true'" << "c" << quint64(8) << 128u << true << true << true << false;
    QTest::newRow("no name") << "class='poster' binding='wall'" << "" << quint64(4) << 512u << true << true << false << false;
}

void TestDescription::identity()
{
    QFETCH(QString, attributes);
    QFETCH(QString, name);
    QFETCH(quint64, articleClass);
    QFETCH(quint32, coverType);
    QFETCH(bool, valid);
    QFETCH(bool, simplex);
    QFETCH(bool, varioCard);
    QFETCH(bool, easyCard);

    const PvProductTypeDescription description(product(attributes));
    QCOMPARE(description.productType(), PvProductType(name));
    QCOMPARE(quint64(description.articleClass().toUnderlying()), articleClass);
    QCOMPARE(description.coverType().toUnderlying(), coverType);
    QCOMPARE(description.isValid(), valid);
    QCOMPARE(description.isSimplex(), simplex);
    QCOMPARE(description.isVarioCard(), varioCard);
    QCOMPARE(description.isEasyCard(), easyCard);
}

void TestDescription::defaults()
{
    for (const PvProductTypeDescription& description : { PvProductTypeDescription(), PvProductTypeDescription(QDomElement()) }) {
        QVERIFY(!description.productType().isValid());
        QVERIFY(!description.articleClass().isValid());
        QVERIFY(!description.coverType().isValid());
        QVERIFY(!description.isVario());
        QVERIFY(!description.isTwoSided());
        QVERIFY(!description.isValid());
    }
    QVERIFY(PvProductTypeDescription(product(QStringLiteral("isTwoSided='1'"))).isTwoSided());
}

void TestDescription::fromFile()
{
    const QDomElement root = PvXMLLoader::loadDocumentElement(QStringLiteral(PV_TESTDATA "/calendar.xml"));
    const PvProductTypeDescription description(root.firstChildElement(QStringLiteral("product")));
    QCOMPARE(description.productType().name(), QStringLiteral("wall-calendar-a3"));
    QCOMPARE(description.articleClass().encodeCSV(), QStringLiteral("calendar"));
    QCOMPARE(description.coverType().encodeCSV(), QStringLiteral("spiral"));
    QVERIFY(description.isTwoSided());
    QVERIFY(description.isValid());
}

QTEST_GUILESS_MAIN(TestDescription)
#include "tst_description.moc"
