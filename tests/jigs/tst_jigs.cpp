#include "PvContentDropRedirectList.h"
#include "PvDateRangeConstraint.h"
#include "PvJigEditorAbilities.h"
#include "PvJigType.h"
#include "PvProductEditorAbilities.h"
#include "PvTestXml.h"

#include <QDomDocument>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>

namespace {
// Category names of a row, written "a|b".
QStringList names(const char* text)
{
    return QString::fromUtf8(text).split(QLatin1Char('|'));
}
}

class TestJigs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void abilities_data();
    void abilities();
    void abilitiesEquality();
    void jigTypes_data();
    void jigTypes();
    void dateRange_data();
    void dateRange();
    void dateQueries();
    void redirects_data();
    void redirects();
    void editorAbilities_data();
    void editorAbilities();
    void editorAbilitiesEquality();
};

void TestJigs::abilities_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QList<bool>>("flags"); // enabled, rotatable, full on each page, exact article
    QTest::addColumn<quint32>("pageType");
    QTest::addColumn<QStringList>("categories");

    const QList<bool> defaults { true, false, true, false };
    QTest::newRow("empty element") << "<background/>" << defaults << quint32(PvPageTypePage) << QStringList();
    QTest::newRow("all flags flipped") << "<clipart enabled='no' rotatable='TRUE' fullOnEachPage='0' exactArticle='yes'/>"
                                       << QList<bool> { false, true, false, true } << 0u << QStringList();
    const QString twoTypes = QStringLiteral("<b><categories pageType='cover_front, run'>sea,,mountains</categories></b>");
    QTest::newRow("two page types: first") << twoTypes << defaults << quint32(PvPageTypeCoverFront) << names("sea|mountains");
    QTest::newRow("two page types: second") << twoTypes << defaults << quint32(PvPageTypeRun) << names("sea|mountains");
    QTest::newRow("combined lookup finds nothing") << twoTypes << defaults << quint32(PvPageTypeCoverFront | PvPageTypeRun) << QStringList();
    QTest::newRow("alias of two bits") << "<b><categories pageType='page_left'>a</categories></b>" << defaults << quint32(PvPageTypeLeft) << names("a");
    QTest::newRow("later element wins") << "<b><categories pageType='page'>a,b</categories><categories pageType='page,left'>c</categories></b>"
                                        << defaults << quint32(PvPageTypePage) << names("c");
    QTest::newRow("blanks kept") << "<b><categories pageType='page'> a ,b</categories></b>" << defaults << quint32(PvPageTypePage) << names(" a |b");
    QTest::newRow("unknown page type") << "<b><categories pageType='ceiling'>a</categories></b>" << defaults << 0u << QStringList();
}

void TestJigs::abilities()
{
    QFETCH(QString, xml);
    QFETCH(QList<bool>, flags);
    QFETCH(quint32, pageType);
    QFETCH(QStringList, categories);

    const PvJigEditorAbilities abilities(element(xml));
    QCOMPARE((QList<bool> { abilities.isEnabled(), abilities.rotatable(), abilities.fullOnEachPage(), abilities.requiresExactArticle() }), flags);
    QCOMPARE(abilities.allowedCategories(PvPageType(PvPageTypeEnum(pageType))), categories);
}

void TestJigs::abilitiesEquality()
{
    const PvJigEditorAbilities a(element(QStringLiteral("<b><categories pageType='page'>x,y</categories></b>")));
    const PvJigEditorAbilities same(element(QStringLiteral("<b enabled='true'><categories pageType='page'>x,y</categories></b>")));
    QVERIFY(a == same);
    QVERIFY(a != PvJigEditorAbilities(element(QStringLiteral("<b><categories pageType='page'>y,x</categories></b>"))));
    QVERIFY(a != PvJigEditorAbilities());
    QVERIFY(PvJigEditorAbilities(element(QStringLiteral("<b exactArticle='1'/>"))) != PvJigEditorAbilities());
}

void TestJigs::jigTypes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<quint32>("value");
    QTest::addColumn<QString>("description");
    QTest::addColumn<quint32>("dlpType");
    QTest::addColumn<bool>("downloadable");

    QTest::newRow("alias in other case") << "Backgrounds" << 1u << "Hintergrund" << 1u << true;
    QTest::newRow("layout") << "Layouts" << 8u << "Layout" << 32u << true;
    QTest::newRow("story book") << "storybook" << 4096u << "Buchvorlage" << 64u << false;
    QTest::newRow("style and story") << "styles_v2,storybook" << 6144u << "" << 66u << false;
    QTest::newRow("frame") << "Rahmen" << 128u << "Rahmen" << 0u << false;
    QTest::newRow("variant template") << "variant_template" << 8192u << "" << 0u << false;
    QTest::newRow("two kinds") << "clipart,background" << 3u << "" << 0u << false;
    QTest::newRow("unknown name") << "sticker" << 0u << "" << 0u << false;
}

void TestJigs::jigTypes()
{
    QFETCH(QString, text);
    QFETCH(quint32, value);
    QFETCH(QString, description);
    QFETCH(quint32, dlpType);
    QFETCH(bool, downloadable);

    const PvJigType type(text);
    QCOMPARE(type.toUnderlying(), value);
    QCOMPARE(type.describe(), description);
    QCOMPARE(type.dlpType().toUnderlying(), dlpType);
    QCOMPARE(type.isDownloadable(), downloadable);
    QCOMPARE(PvJigType::createFromDlpType(type.dlpType()).toUnderlying(), dlpType ? value : 0u);
}

void TestJigs::dateRange_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QDate>("today");
    QTest::addColumn<QDate>("from");
    QTest::addColumn<QDate>("to");

    QTest::newRow("two years ahead") << "<d isEnforced='true' minimumFromCurrentYear='0' maximumFromCurrentYear='2'/>"
                                     << QDate(2030, 12, 31) << QDate(2030, 1, 1) << QDate(2032, 1, 1);
    QTest::newRow("year beyond int") << "<d maximumFromCurrentYear='2147483647'/>" << QDate(2030, 3, 3) << QDate(2030, 1, 1) << QDate();
}

void TestJigs::dateRange()
{
    QFETCH(QString, xml);
    QFETCH(QDate, today);
    QFETCH(QDate, from);
    QFETCH(QDate, to);

    const PvDateRange range = PvDateRangeConstraint(element(xml)).allowedDateRange(today);
    QCOMPARE(range.from(), from);
    QCOMPARE(range.to(), to);
}

void TestJigs::dateQueries()
{
    const QDate date(2001, 5, 17);
    const PvDateRangeConstraint loose(element(QStringLiteral("<d minimumFromCurrentYear='3' maximumFromCurrentYear='5'/>")));
    QCOMPARE(loose.maximumAllowedDate(date), date);
    QCOMPARE(loose.minimumAllowedDateSince(date), date);

    const PvDateRangeConstraint strict(element(QStringLiteral("<d isEnforced='1' minimumFromCurrentYear='3' maximumFromCurrentYear='5'/>")));
    const int year = QDate::currentDate().year();
    QCOMPARE(strict.maximumAllowedDate(date), QDate(year + 5, 1, 1));
    QCOMPARE(strict.minimumAllowedDateSince(date), QDate(year + 3, 1, 1));
}

void TestJigs::redirects_data()
{
    QTest::addColumn<QString>("redirects");
    QTest::addColumn<int>("warnings");
    QTest::addColumn<QList<int>>("pages");
    QTest::addColumn<QList<int>>("targets");

    const QList<int> pages { 0, 1, 2, 3, 4, 5 };
    QTest::newRow("range") << "<contentredirect from='2-4' to='1'/>" << 0 << pages << QList<int> { 0, 1, 1, 1, 1, 5 };
    QTest::newRow("reversed range maps nothing") << "<contentredirect from='4-2' to='1'/>" << 0 << pages << pages;
    QTest::newRow("later overwrites") << "<contentredirect from='1-3' to='0'/><contentredirect from='3' to='5'/>" << 0 << pages << QList<int> { 0, 0, 0, 5, 4, 5 };
    QTest::newRow("middle piece ignored") << "<contentredirect from='1-x-2' to='4'/>" << 0 << pages << QList<int> { 0, 4, 4, 3, 4, 5 };
    QTest::newRow("to missing") << "<contentredirect from='2'/><contentredirect from='3' to='0'/>" << 1 << pages << QList<int> { 0, 1, 2, 0, 4, 5 };
    QTest::newRow("neighbours with one target") << "<contentredirect from='1-2' to='0'/><contentredirect from='3' to='0'/>" << 0 << pages
                                                << QList<int> { 0, 0, 0, 0, 4, 5 };
    QTest::newRow("leading minus") << "<contentredirect from='-4' to='1'/>" << 1 << pages << pages;
    QTest::newRow("ten million pages") << "<contentredirect from='0-9999999' to='1'/>" << 1 << pages << pages;
    QTest::newRow("widest allowed") << "<contentredirect from='1-100000' to='0'/>" << 0 << QList<int> { 0, 100000, 100001 } << QList<int> { 0, 0, 100001 };
    QTest::newRow("one page too wide") << "<contentredirect from='1-100001' to='0'/>" << 1 << QList<int> { 1 } << QList<int> { 1 };
    QTest::newRow("end at int max") << "<contentredirect from='2147483646-2147483647' to='7'/>" << 0
                                    << QList<int> { 2147483645, 2147483647 } << QList<int> { 2147483645, 7 };
}

void TestJigs::redirects()
{
    QFETCH(QString, redirects);
    QFETCH(int, warnings);
    QFETCH(QList<int>, pages);
    QFETCH(QList<int>, targets);

    for (int i = 0; i < warnings; ++i)
        QTest::ignoreMessage(QtWarningMsg, "parse error");
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    const PvContentDropRedirectList list(element(QStringLiteral("<contentredirects>%1</contentredirects>").arg(redirects)));
    QList<int> actual;
    for (int page : pages)
        actual.append(list.targetPage(page));
    QCOMPARE(actual, targets);

    // The listed ranges say the same: sorted, apart, and each page lands where targetPage() says.
    const QList<PvContentDropRedirectList::Range> ranges = list.ranges();
    for (int i = 0; i < ranges.size(); ++i) {
        QVERIFY(ranges.at(i).first <= ranges.at(i).last);
        QVERIFY(i == 0 || ranges.at(i - 1).last < ranges.at(i).first);
    }
    QList<int> listed;
    for (int page : pages) {
        const auto range = std::find_if(ranges.cbegin(), ranges.cend(), [page](const auto& r) { return r.first <= page && page <= r.last; });
        listed.append(range == ranges.cend() ? page : range->target);
    }
    QCOMPARE(listed, targets);
}

QTEST_GUILESS_MAIN(TestJigs)
void TestJigs::editorAbilities_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("summary");
    QTest::addColumn<QStringList>("pageCategories");

    // summary: assistant, convertable, naming style, start page, button, backgrounds enabled,
    // rotatable, full on each page, cliparts need the exact article
    QTest::newRow("empty element") << "<editorAbilities/>" << "0 1 0 0 0 1 0 1 0" << QStringList();
    QTest::newRow("other tag gives defaults") << "<abilities convertable='false'><assistant enabled='true'/></abilities>" << "0 1 0 0 0 1 0 1 0" << QStringList();
    QTest::newRow("only convertable") << "<editorAbilities convertable='false'/>" << "0 0 0 0 0 1 0 1 0" << QStringList();
    QTest::newRow("button on the wrong element") << "<editorAbilities showChangeBaseDesignButton='true'><jigs/></editorAbilities>" << "0 1 0 0 0 1 0 1 0" << QStringList();
    QTest::newRow("everything")
        << "<editorAbilities><assistant enabled='1'/><pageNamingStyle> calendar </pageNamingStyle><startPage>3</startPage>"
           "<jigs showChangeBaseDesignButton='true'><Hintergrund rotatable='true' fullOnEachPage='false'>"
           "<categories pageType='page'>Natur,Urlaub</categories></Hintergrund><cliparts exactArticle='true'/><!-- note --><unknownjig enabled='false'/></jigs></editorAbilities>"
        << "1 1 2 3 1 1 1 0 1" << QStringList { QStringLiteral("Natur"), QStringLiteral("Urlaub") };
    QTest::newRow("later jig element wins")
        << "<editorAbilities><jigs><background rotatable='true'><categories pageType='page'>Natur</categories></background>"
           "<backgrounds enabled='false'/></jigs></editorAbilities>"
        << "0 1 0 0 0 0 0 1 0" << QStringList();
}

void TestJigs::editorAbilities()
{
    QFETCH(QString, xml);
    QFETCH(QString, summary);
    QFETCH(QStringList, pageCategories);

    const PvProductEditorAbilities abilities(element(xml));
    const QStringList values = {
        QString::number(abilities.hasAssistant()), QString::number(abilities.isConvertable()),
        QString::number(abilities.pageNamingStyle().toUnderlying()), QString::number(abilities.editorStartPage()),
        QString::number(abilities.showChangeBaseDesignButton()), QString::number(abilities.isJigEnabled(PvJigType(PvJigTypeBackground))),
        QString::number(abilities.canRotateBackgrounds()), QString::number(abilities.fullBackgroundOnEachPage()),
        QString::number(abilities.requiresExactArticle(PvJigType(PvJigTypeClipart))),
    };
    QCOMPARE(values.join(QLatin1Char(' ')), summary);
    QVERIFY(abilities.isJigEnabled(PvJigType(PvJigTypeLayout)));

    QStringList categories = abilities.allowedCategories(PvJigType(PvJigTypeBackground), PvPageType(PvPageTypePage)).toDataStringList();
    categories.sort();
    QCOMPARE(categories, pageCategories);
    // Lists are kept per single page type: a combined type, another page or another jig finds none.
    QVERIFY(abilities.allowedCategories(PvJigType(PvJigTypeBackground), PvPageType(PvPageTypePageLeft)).isEmpty());
    QVERIFY(abilities.allowedCategories(PvJigType(PvJigTypeBackground), PvPageType(PvPageTypeCover)).isEmpty());
    QVERIFY(abilities.allowedCategories(PvJigType(PvJigTypeClipart), PvPageType(PvPageTypePage)).isEmpty());
}

void TestJigs::editorAbilitiesEquality()
{
    const PvProductEditorAbilities plain(element(QStringLiteral("<editorAbilities/>")));
    const PvProductEditorAbilities tilted(element(QStringLiteral(
        "<editorAbilities><pageTilt disabled='true'/><dateRangeConstraint isEnforced='true' maximumFromCurrentYear='2'/></editorAbilities>")));
    QVERIFY(tilted.userPageTiltConfig().isPageRotationDisabled(4));
    QVERIFY(tilted.dateRangeConstraint().enforce());
    QCOMPARE(plain, tilted);
    QCOMPARE(plain, PvProductEditorAbilities());
    QVERIFY(plain != PvProductEditorAbilities(element(QStringLiteral("<editorAbilities><jigs><layout enabled='false'/></jigs></editorAbilities>"))));
    QVERIFY(plain != PvProductEditorAbilities(element(QStringLiteral("<editorAbilities><startPage>2</startPage></editorAbilities>"))));
}

#include "tst_jigs.moc"
