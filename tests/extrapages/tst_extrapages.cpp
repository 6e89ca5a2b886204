#include "PvProductionExtraPageGroupList.h"
#include "PvTestXml.h"
#include "PvXMLLoader.h"

#include <QDomDocument>
#include <QTest>

namespace {
const QString tooMany = QStringLiteral("Too many target pages, skipped: \"%1\"");
}

class TestExtraPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void targetPages_data();
    void targetPages();
    void equality_data();
    void equality();
    void fromFile();
    void pageBudgetSpansList();
};

void TestExtraPages::targetPages_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<int>>("pages");
    QTest::addColumn<QString>("skipped");

    QTest::newRow("ranges either way") << "1, 3-5, 9-7" << QList<int> { 1, 3, 4, 5, 7, 8, 9 } << QString();
    QTest::newRow("leading minus is a range from 0") << "-4" << QList<int> { 0, 1, 2, 3, 4 } << QString();
    QTest::newRow("one-page range") << "5-5" << QList<int> { 5 } << QString();
    QTest::newRow("duplicates and blanks") << " 3 ,,\n 3 " << QList<int> { 3, 3 } << QString();
    QTest::newRow("words skipped, in ranges 0") << "a, 2, x-1" << QList<int> { 2, 0, 1 } << QString();
    QTest::newRow("inner pieces ignored") << "2-9-4" << QList<int> { 2, 3, 4 } << QString();
    QTest::newRow("empty") << "" << QList<int>() << QString();
    QTest::newRow("huge range") << "1, 0-2147483647, 2" << QList<int> { 1, 2 } << "0-2147483647";
    QTest::newRow("one page over the bound") << "7, 1-100000" << QList<int> { 7 } << "1-100000";
}

void TestExtraPages::targetPages()
{
    QFETCH(QString, text);
    QFETCH(QList<int>, pages);
    QFETCH(QString, skipped);

    if (!skipped.isEmpty())
        QTest::ignoreMessage(QtWarningMsg, qUtf8Printable(tooMany.arg(skipped)));
    const PvProductionExtraPageGroup group(element(QStringLiteral("<item><target_pages>%1</target_pages></item>").arg(text)));
    QCOMPARE(group.targetPages(), pages);
}

void TestExtraPages::equality_data()
{
    QTest::addColumn<QString>("pdf");
    QTest::addColumn<QString>("pages");
    QTest::addColumn<bool>("pagesEqual");
    QTest::addColumn<bool>("groupsEqual");

    QTest::newRow("layer ignored") << "filename='a.pdf' type='t' layer='2'" << "1,2" << true << true;
    QTest::newRow("type only in page") << "filename='a.pdf' type='u' layer='1'" << "1,2" << false << true;
    QTest::newRow("file name") << "filename='b.pdf' type='t' layer='1'" << "1,2" << false << false;
    QTest::newRow("page order") << "filename='a.pdf' type='t' layer='1'" << "2,1" << true << false;
    QTest::newRow("page count") << "filename='a.pdf' type='t' layer='1'" << "1,2,2" << true << false;
}

void TestExtraPages::equality()
{
    QFETCH(QString, pdf);
    QFETCH(QString, pages);
    QFETCH(bool, pagesEqual);
    QFETCH(bool, groupsEqual);

    const QString item = QStringLiteral("<item><target_pages>%1</target_pages><pdf %2/></item>");
    const PvProductionExtraPageGroup a(element(item.arg(QStringLiteral("1-2"), QStringLiteral("filename='a.pdf' type='t' layer='1'"))));
    const PvProductionExtraPageGroup b(element(item.arg(pages, pdf)));
    QCOMPARE(a.content() != b.content(), !pagesEqual);
    QCOMPARE(a == b, groupsEqual);
}

void TestExtraPages::fromFile()
{
    const QDomElement product = PvXMLLoader::loadDocumentElement(QStringLiteral(PV_TESTDATA "/product.xml")).firstChildElement();
    const PvProductionExtraPageGroupList list(product.firstChildElement(QStringLiteral("extra_production_pages")));
    QCOMPARE(list.size(), 3);
    QCOMPARE(list.totalPages(), 11);
    QVERIFY(list.at(0).content() == PvProductionExtraPage(element(QStringLiteral("<pdf filename='backing.pdf' type='backing'/>"))));
    QCOMPARE(list.at(0).content().targetLayer(), 2);
    QVERIFY(list.at(1).content().filename().isEmpty() && list.at(1).content().templateType().isEmpty() && list.at(1).content().targetLayer() == 0);
    QCOMPARE(list.at(2).content().targetLayer(), 0);
    QCOMPARE(list.at(2).targetPages(), QList<int> { 24 });

    const PvProductionExtraPageGroupList none(product.firstChildElement(QStringLiteral("missing")));
    QVERIFY(none.isEmpty());
    QCOMPARE(none.totalPages(), 0);
}

void TestExtraPages::pageBudgetSpansList()
{
    QTest::ignoreMessage(QtWarningMsg, qUtf8Printable(tooMany.arg(QStringLiteral("1-50000"))));
    const QString item = QStringLiteral("<item><target_pages>%1</target_pages></item>");
    const PvProductionExtraPageGroupList list(element(QStringLiteral("<extra_production_pages>%1</extra_production_pages>")
                                                          .arg(item.arg(QStringLiteral("1-60000")) + item.arg(QStringLiteral("1-50000, 9")))));
    QCOMPARE(list.size(), 2);
    QCOMPARE(list.totalPages(), 60001);
    QCOMPARE(list.at(1).targetPages(), QList<int> { 9 });
}

QTEST_GUILESS_MAIN(TestExtraPages)
#include "tst_extrapages.moc"
