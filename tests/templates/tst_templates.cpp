#include "PvDefaultTemplateMap.h"
#include "PvXMLLoader.h"

#include <QTest>

class TestTemplates : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findTemplate_data();
    void findTemplate();
};

void TestTemplates::findTemplate_data()
{
    QTest::addColumn<bool>("overlaid");
    QTest::addColumn<QString>("pageType");
    QTest::addColumn<QString>("alignment");
    QTest::addColumn<int>("pageNumber");
    QTest::addColumn<int>("scenePageCount");
    QTest::addColumn<QString>("expected"); // background|layout|design

    QTest::newRow("two names") << false << "page" << "left" << -1 << -1 << "301|417|";
    QTest::newRow("one name; later entry wins") << false << "page" << "right" << -1 << -1 << "309||";
    QTest::newRow("no names: house background") << false << "cover_front" << "middle" << -1 << -1 << "201||";
    QTest::newRow("three names, explicit background") << false << "page_left" << "bottom" << -1 << -1 << "m||";
    QTest::newRow("alignment not listed") << false << "month_page" << "left" << -1 << -1 << "||";
    QTest::newRow("spread only") << false << "page" << "spread" << -1 << -1 << "x|y|";
    QTest::newRow("exact page type only") << false << "page_right" << "right" << -1 << -1 << "||";
    QTest::newRow("umlauts folded, design untrimmed") << false << "cover_back" << "left" << -1 << -1 << "oel|aerger-Strasse| Gruesse ";
    QTest::newRow("page and scene count") << false << "page" << "left" << 5 << 2 << "201|five|";
    QTest::newRow("scene count for any page") << false << "page" << "left" << 6 << 2 << "201|twin|";
    QTest::newRow("other scene count: general") << false << "page" << "left" << 5 << 3 << "301|417|";
    QTest::newRow("empty name falls through") << false << "page" << "left" << 7 << -1 << "201|417|";
    QTest::newRow("second defaults overlay") << true << "page" << "left" << -1 << -1 << "999||";
    QTest::newRow("overlay keeps the rest") << true << "page" << "right" << -1 << -1 << "309||";
}

void TestTemplates::findTemplate()
{
    QFETCH(bool, overlaid);
    QFETCH(QString, pageType);
    QFETCH(QString, alignment);
    QFETCH(int, pageNumber);
    QFETCH(int, scenePageCount);
    QFETCH(QString, expected);

    // Held while the map is read: elements do not keep their document alive.
    const QDomElement product = PvXMLLoader::loadDocumentElement(QStringLiteral(PV_TESTDATA "/defaults.xml"));
    const QDomElement defaults = product.firstChildElement(QStringLiteral("defaults"));
    PvDefaultTemplateMap map(defaults);
    if (overlaid)
        map.applyDefaultsNode(defaults.nextSiblingElement(QStringLiteral("defaults")));
    const PvPageContext context { PvPageType(pageType), PvPageAlignment(alignment) };
    QStringList found;
    for (const PvDefaultTemplateType type : { PvDefaultTemplateTypeBackground, PvDefaultTemplateTypeLayout, PvDefaultTemplateTypeDesign })
        found.append(map.findTemplate(PvDefaultTemplateKey(context, type, pageNumber, scenePageCount)));
    QCOMPARE(found.join(u'|'), expected);
}

QTEST_GUILESS_MAIN(TestTemplates)
#include "tst_templates.moc"
