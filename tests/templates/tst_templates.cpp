#include "PvDefaultTemplateMap.h"
#include "PvXMLLoader.h"

#include <QTest>

namespace {
QDomElement defaultsElement(int index)
{
    // Held for the whole run: elements do not keep their document alive.
    static const QDomElement product = PvXMLLoader::loadDocumentElement(QStringLiteral(PV_TESTDATA "/defaults.xml"));
    QDomElement defaults = product.firstChildElement(QStringLiteral("defaults"));
    for (int i = 0; i < index; ++i)
        defaults = defaults.nextSiblingElement(QStringLiteral("defaults"));
    return defaults;
}
}

class TestTemplates : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findTemplate_data();
    void findTemplate();
    void removeUmlauts_data();
    void removeUmlauts();
};

void TestTemplates::findTemplate_data()
{
    QTest::addColumn<bool>("overlaid");
    QTest::addColumn<QString>("pageType");
    QTest::addColumn<QString>("alignment");
    QTest::addColumn<int>("templateType");
    QTest::addColumn<int>("pageNumber");
    QTest::addColumn<int>("scenePageCount");
    QTest::addColumn<QString>("expected");

    const int layout = PvDefaultTemplateTypeLayout;
    const int background = PvDefaultTemplateTypeBackground;
    const int design = PvDefaultTemplateTypeDesign;
    QTest::newRow("two names: background") << false << "page" << "left" << background << -1 << -1 << "301";
    QTest::newRow("two names: layout") << false << "page" << "left" << layout << -1 << -1 << "417";
    QTest::newRow("one name: no layout") << false << "page" << "right" << layout << -1 << -1 << "";
    QTest::newRow("later entry overwrites") << false << "page" << "right" << background << -1 << -1 << "309";
    QTest::newRow("no names: house background") << false << "cover_front" << "middle" << background << -1 << -1 << "201";
    QTest::newRow("no names: empty layout") << false << "cover_front" << "left" << layout << -1 << -1 << "";
    QTest::newRow("three names: no layout") << false << "month_page" << "top" << layout << -1 << -1 << "";
    QTest::newRow("explicit background wins") << false << "page_left" << "bottom" << background << -1 << -1 << "m";
    QTest::newRow("alignment not listed") << false << "month_page" << "left" << background << -1 << -1 << "";
    QTest::newRow("single alignment only") << false << "page" << "spread" << layout << -1 << -1 << "y";
    QTest::newRow("unknown page type") << false << "flyleaf" << "left" << background << -1 << -1 << "";
    QTest::newRow("layout trimmed and folded") << false << "cover_back" << "left" << layout << -1 << -1 << "aerger-Strasse";
    QTest::newRow("background trimmed and folded") << false << "cover_back" << "left" << background << -1 << -1 << "oel";
    QTest::newRow("design folded, not trimmed") << false << "cover_back" << "left" << design << -1 << -1 << " Gruesse ";
    QTest::newRow("page and scene count") << false << "page" << "left" << layout << 5 << 2 << "five";
    QTest::newRow("scene count for any page") << false << "page" << "left" << layout << 6 << 2 << "twin";
    QTest::newRow("scene entry has house background") << false << "page" << "left" << background << 6 << 2 << "201";
    QTest::newRow("other scene count: general") << false << "page" << "left" << layout << 5 << 3 << "417";
    QTest::newRow("page without scene: general") << false << "page" << "left" << layout << 5 << -1 << "417";
    QTest::newRow("empty entry falls through") << false << "page" << "left" << layout << 7 << -1 << "417";
    QTest::newRow("overlay replaces background") << true << "page" << "left" << background << -1 << -1 << "999";
    QTest::newRow("overlay clears layout") << true << "page" << "left" << layout << -1 << -1 << "";
    QTest::newRow("overlay keeps the rest") << true << "page" << "right" << background << -1 << -1 << "309";
}

void TestTemplates::findTemplate()
{
    QFETCH(bool, overlaid);
    QFETCH(QString, pageType);
    QFETCH(QString, alignment);
    QFETCH(int, templateType);
    QFETCH(int, pageNumber);
    QFETCH(int, scenePageCount);
    QFETCH(QString, expected);

    PvDefaultTemplateMap map(defaultsElement(0));
    if (overlaid)
        map.applyDefaultsNode(defaultsElement(1));
    const PvPageContext context { PvPageType(pageType), PvPageAlignment(alignment) };
    QCOMPARE(map.findTemplate(PvDefaultTemplateKey(context, PvDefaultTemplateType(templateType), pageNumber, scenePageCount)), expected);
}

void TestTemplates::removeUmlauts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("lower case") << QStringLiteral(u"Bäume über Flöße") << "Baeume ueber Floesse";
    QTest::newRow("capitals fold to lower pairs") << QStringLiteral(u"ÄÖÜ") << "aeoeue";
    QTest::newRow("plain text unchanged") << "Layout 42" << "Layout 42";
    QTest::newRow("empty") << "" << "";
}

void TestTemplates::removeUmlauts()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QCOMPARE(PvDefaultTemplateMap::removeUmlauts(text), expected);
}

QTEST_GUILESS_MAIN(TestTemplates)
#include "tst_templates.moc"
