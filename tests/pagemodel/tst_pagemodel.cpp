#include "PvCoverType.h"
#include "PvEmptyMeansAllSet.h"
#include "PvPageConstraint.h"
#include "PvPageContext.h"
#include "PvPageNamingStyle.h"
#include "PvPageTiltRedirectList.h"
#include "PvPageTypeList.h"
#include "PvProductType.h"
#include "PvTestXml.h"
#include "PvUserPageTiltConfig.h"

#include <QDomDocument>
#include <QTest>

// Every member must compile for value types that are not enumerations, too.
template class PvEmptyMeansAllSet<PvProductType>;
template class PvEmptyMeansAllSet<PvCoverType>;

namespace {
using Values = QList<quint32>;

PvPageConstraint constraint(quint32 types, quint32 alignments)
{
    return PvPageConstraint(PvPageType(PvPageTypeEnum(types)), PvPageAlignment(PvPageAlignmentEnum(alignments)));
}

Values values(const QList<PvPageType>& types)
{
    Values result;
    for (const PvPageType& type : types)
        result.append(type.toUnderlying());
    return result;
}

QList<int> flattened(const PvPageTiltRedirectList& redirects)
{
    QList<int> result;
    for (const PvPageTiltRedirect& r : redirects)
        result << r.sourcePageNr() << r.targetPageNr() << r.angleInvert();
    return result;
}
}

class TestPageModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void emptyMeansAllSet();
    void matches_data();
    void matches();
    void pageTypeQueries_data();
    void pageTypeQueries();
    void copyOnWrite();
    void writing();
    void pageTypeList_data();
    void pageTypeList();
    void panoramaNeedsExactValue();
    void pageNamingXml_data();
    void pageNamingXml();
    void tiltRedirects_data();
    void tiltRedirects();
    void userPageTilt_data();
    void userPageTilt();
};

void TestPageModel::emptyMeansAllSet()
{
    PvEmptyMeansAllSet<PvPageType> set;
    set.extendTo(PvPageType(PvPageTypePanoramaPage));
    QCOMPARE(values(set.sortedByValue()), Values({ 0x8, 0x200000 }));
    QVERIFY(!PvEmptyMeansAllSet<PvPageType>().sharesRealKeysWith(set));
    const PvProductType book(QStringLiteral("book"));
    QVERIFY(PvEmptyMeansAllSet<PvProductType>().sharesKey(book));
    QVERIFY(!PvEmptyMeansAllSet<PvProductType>({ book }).sharesKey(PvProductType(QStringLiteral("mug"))));
    // Whole values, not shared bits.
    const PvEmptyMeansAllSet<PvCoverType> covers({ PvCoverType(PvCoverTypeEnum(PvCoverTypeHardcover | PvCoverTypeLinen)) });
    QVERIFY(!covers.sharesKey(PvCoverType(PvCoverTypeHardcover)));
}

void TestPageModel::matches_data()
{
    QTest::addColumn<quint32>("typesA");
    QTest::addColumn<quint32>("alignA");
    QTest::addColumn<quint32>("typesB");
    QTest::addColumn<quint32>("alignB");
    QTest::addColumn<QString>("difference");
    const QString okay = QStringLiteral("Page Constraints Okay");
    QTest::newRow("both empty") << 0u << 0u << 0u << 0u << okay;
    QTest::newRow("type alone matches any alignment") << 0x8u << 0u << 0x8u << 4u << okay;
    QTest::newRow("one shared bit suffices") << 0x200008u << 1u << 0x8u << 3u << okay;
    QTest::newRow("types differ") << 0x2u << 0u << 0x4u << 0u << "Page Constraints differ: PageType: 0, Alignment 1";
    QTest::newRow("alignments differ") << 0x8u << 1u << 0u << 2u << "Page Constraints differ: PageType: 1, Alignment 0";
    QTest::newRow("both differ") << 0x40u << 8u << 0x80u << 4u << "Page Constraints differ: PageType: 0, Alignment 0";
}

void TestPageModel::matches()
{
    QFETCH(quint32, typesA);
    QFETCH(quint32, alignA);
    QFETCH(quint32, typesB);
    QFETCH(quint32, alignB);
    QFETCH(QString, difference);
    const PvPageConstraint a = constraint(typesA, alignA);
    const PvPageConstraint b = constraint(typesB, alignB);
    const bool expected = difference == QLatin1String("Page Constraints Okay");
    QCOMPARE(a.matches(b), expected);
    QCOMPARE(b.matches(a), expected);
    QCOMPARE(a.describeDifference(b), difference);
}

void TestPageModel::pageTypeQueries_data()
{
    QTest::addColumn<quint32>("types");
    QTest::addColumn<quint32>("asked");
    QTest::addColumn<bool>("isPageType");
    QTest::addColumn<bool>("sharesPageType");
    QTest::newRow("empty set accepts but names nothing") << 0u << 0x8u << true << false;
    QTest::newRow("invalid type") << 0u << 0u << false << false;
    QTest::newRow("combined asked, one bit held") << 0x8u << 0x200008u << true << true;
    QTest::newRow("no shared bit") << 0x2u << 0x4u << false << false;
    QTest::newRow("top bit splits into nothing") << 0x2u << 0x80000000u << true << false;
}

void TestPageModel::pageTypeQueries()
{
    QFETCH(quint32, types);
    QFETCH(quint32, asked);
    const PvPageConstraint c{ PvPageContext(PvPageType(PvPageTypeEnum(types)), PvPageAlignment(PvPageAlignmentLeft)) };
    const PvPageType type{ PvPageTypeEnum(asked) };
    QTEST(c.isPageType(type), "isPageType");
    QTEST(c.sharesPageType(type), "sharesPageType");
}

void TestPageModel::copyOnWrite()
{
    const PvPageConstraint original{ PvPageType(PvPageTypeLeft) };
    PvPageConstraint copy = original;
    QVERIFY(copy == original);
    copy.addPageType(PvPageType(PvPageTypeRight));
    copy.setIntendedAlignment(PvPageAlignment(PvPageAlignmentSpread));
    QVERIFY(copy != original);
    QCOMPARE(values(original.pageTypes().sortedByValue()), Values({ 0x2 }));
    QVERIFY(original.intendedAlignments().isEmpty());
    QVERIFY(constraint(0x6, 8) == copy);
}

void TestPageModel::writing()
{
    PvPageConstraint c(PvPageType(PvPageTypePanoramaPage), PvPageAlignment(PvPageAlignmentEnum(PvPageAlignmentRight | PvPageAlignmentLeft)));
    QDomDocument document;
    QDomElement parent = document.createElement(QStringLiteral("constraint"));
    PvPageConstraint().toXml(parent);
    QVERIFY(!parent.hasChildNodes());
    c.toXml(parent);
    QStringList written;
    for (QDomElement e = parent.firstChildElement(); !e.isNull(); e = e.nextSiblingElement())
        written << e.tagName() + QLatin1Char('=') + e.text();
    QCOMPARE(written.join(QLatin1Char(' ')), QStringLiteral("pagetype=page pagetype=panorama intendedAlignment=left intendedAlignment=right"));
    QCOMPARE(c.describe(), QStringLiteral("SeitenTypen: {page, panorama} Alignment {left, right}"));
    QCOMPARE(PvPageConstraint().describe(), QStringLiteral("SeitenTypen: {} Alignment {}"));
}

void TestPageModel::pageTypeList_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Values>("expected");
    QTest::addColumn<quint32>("matchOf");
    QTest::addColumn<bool>("containsMatch");
    QTest::addColumn<bool>("hasPano");
    QTest::newRow("comma and blank") << "cover_back, spine" << Values({ 0x20, 0x1 }) << 0x21u << true << false;
    QTest::newRow("empty part kept") << "page,,page" << Values({ 0x8, 0x0, 0x8 }) << 0x0u << false << false;
    QTest::newRow("empty text") << "" << Values({ 0x0 }) << 0x8u << false << false;
    QTest::newRow("unknown name kept") << "bogus,left" << Values({ 0x0, 0x2 }) << 0xAu << true << false;
    QTest::newRow("pano page") << " Panorama_Page " << Values({ 0x200008 }) << 0x200000u << true << true;
    QTest::newRow("pano bits apart") << "panorama,page" << Values({ 0x200000, 0x8 }) << 0x4u << false << false;
    QTest::newRow("pano among others") << "panorama_page,run" << Values({ 0x200008, 0x800 }) << 0x800u << true << true;
}

void TestPageModel::pageTypeList()
{
    QFETCH(QString, text);
    QFETCH(quint32, matchOf);
    PvPageTypeList list(text);
    QTEST(values(list), "expected");
    QTEST(list.containsMatch(PvPageType(PvPageTypeEnum(matchOf))), "containsMatch");
    QTEST(list.containsPanoPageType(), "hasPano");
}

void TestPageModel::panoramaNeedsExactValue()
{
    PvPageTypeList list;
    list.appendEnum({ PvPageTypeEnum(0x200808), PvPageTypePanorama });
    QVERIFY(!list.containsPanoPageType());
}

void TestPageModel::pageNamingXml_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("written");
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << "<e/>" << "0" << "UNKOWN";
    QTest::newRow("unparsable") << "<e pagenaming='book'/>" << "0" << "UNKOWN";
    QTest::newRow("calendar") << "<e pagenaming='2'/>" << "2" << "calendar";
    QTest::newRow("none is a real bit") << "<e pagenaming='2097152'/>" << "2097152" << "none";
    QTest::newRow("sign bit") << "<e pagenaming='-2147483648'/>" << "-2147483648" << "slipcase";
}

void TestPageModel::pageNamingXml()
{
    QFETCH(QString, xml);
    QFETCH(QString, name);
    const PvPageNamingStyle style = PvPageNamingStyle::fromXml(element(xml));
    QDomElement target = element(QStringLiteral("<t/>"));
    style.toXml(target);
    QTEST(target.attribute(PvPageNamingStyle::defaultAttributeName()), "written");
    QCOMPARE(PvPageNamingStyle(name).toUnderlying(), style.toUnderlying());
    QCOMPARE(PvPageNamingStyle::fromXml(target).toUnderlying(), style.toUnderlying());
}

void TestPageModel::tiltRedirects_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QList<int>>("expected");
    QTest::addColumn<QList<int>>("fromPage2");
    QTest::addColumn<QList<int>>("toPage2");
    QTest::newRow("missing to dropped, -1 kept")
        << "<r><rotationredirect from='1'/><rotationredirect from='-1' to='-1' angleinvert='-1'/></r>"
        << QList<int>({ -1, -1, -1 }) << QList<int>() << QList<int>();
    QTest::newRow("default invert, order kept")
        << "<r><rotationredirect from='3' to='2'/><x from='2' to='2'/><rotationredirect from='2' to='3' angleinvert='x'/>"
           "<rotationredirect from='2' to='2' angleinvert='-1'/></r>"
        << QList<int>({ 3, 2, 1, 2, 3, 1, 2, 2, -1 }) << QList<int>({ 2, 3, 1, 2, 2, -1 }) << QList<int>({ 3, 2, 1, 2, 2, -1 });
    QTest::newRow("below -1 and garbage") << "<r><rotationredirect from='-2' to='1'/><rotationredirect from='a' to='1'/></r>"
                                          << QList<int>() << QList<int>() << QList<int>();
    QTest::newRow("null element") << "" << QList<int>() << QList<int>() << QList<int>();
}

void TestPageModel::tiltRedirects()
{
    QFETCH(QString, xml);
    const PvPageTiltRedirectList list(element(xml));
    QTEST(flattened(list), "expected");
    QTEST(flattened(list.filterBySourcePage(2)), "fromPage2");
    QTEST(flattened(list.filterByTargetPage(2)), "toPage2");
}

void TestPageModel::userPageTilt_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QList<int>>("disabledOf0To4");
    QTest::newRow("disabled without list") << "<pageTilt disabled='true'/>" << QList<int>({ 0, 1, 2, 3, 4 });
    QTest::newRow("not disabled") << "<pageTilt disabled='false' pages='1,2'/>" << QList<int>();
    QTest::newRow("blanks, trailing comma") << "<pageTilt disabled='yes' pages=' 1 , 3,, x, 4 2, '/>" << QList<int>({ 1, 3 });
    QTest::newRow("null element") << "" << QList<int>();
}

void TestPageModel::userPageTilt()
{
    QFETCH(QString, xml);
    const PvUserPageTiltConfig config(element(xml));
    QList<int> disabled;
    for (int page = 0; page <= 4; ++page) {
        if (config.isPageRotationDisabled(page))
            disabled.append(page);
    }
    QTEST(disabled, "disabledOf0To4");
}

QTEST_GUILESS_MAIN(TestPageModel)
#include "tst_pagemodel.moc"
