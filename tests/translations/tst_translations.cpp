#include "PvJigType.h"
#include "PvJigTypeList.h"
#include "PvPageNamingStyle.h"
#include "PvProductPropertiesTranslations.h"
#include "PvThematicCategory.h"

#include <QLocale>
#include <QTest>
#include <QTranslator>

class TestTranslations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void displayNames_data();
    void displayNames();
    void everyNameTranslated_data();
    void everyNameTranslated();
    void unknownLanguageKeepsTheLoadedOne();
};

void TestTranslations::displayNames_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("jig");
    QTest::addColumn<QString>("pageNaming");
    QTest::addColumn<QString>("allCategories");

    // German last: switching back must undo English, not just start from the source texts.
    QTest::newRow("english") << QLocale(QLocale::English) << QStringLiteral("Background")
                             << QStringLiteral("Calendar") << QStringLiteral("Show all");
    QTest::newRow("british english") << QLocale(QLocale::English, QLocale::UnitedKingdom) << QStringLiteral("Background")
                                     << QStringLiteral("Calendar") << QStringLiteral("Show all");
    QTest::newRow("german") << QLocale(QLocale::German, QLocale::Germany) << QStringLiteral("Hintergrund")
                            << QStringLiteral("Kalender") << QStringLiteral("Alle anzeigen");
}

void TestTranslations::displayNames()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, jig);
    QFETCH(QString, pageNaming);
    QFETCH(QString, allCategories);

    QVERIFY(PvProductPropertiesTranslations::load(locale));
    QCOMPARE(PvJigType(PvJigTypeBackground).describe(), jig);
    QCOMPARE(PvPageNamingStyle(QStringLiteral("calendar")).humanReadableName(), pageNaming);
    QCOMPARE(PvThematicCategory::allText(), allCategories);
    // A combination has no name in any language.
    QCOMPARE(PvPageNamingStyle(QStringLiteral("book,calendar")).humanReadableName(), QString());
}

void TestTranslations::everyNameTranslated_data()
{
    QTest::addColumn<QString>("context");
    QTest::addColumn<QStringList>("names");

    // The German names are the source texts: German has the identity translation.
    QVERIFY(PvProductPropertiesTranslations::load(QLocale(QLocale::German)));
    QStringList jigs;
    for (const PvJigType& jig : PvJigTypeList::allElementTypes())
        jigs.append(jig.describe());
    QStringList styles;
    for (quint64 bit = 1; bit <= 0x80000000u; bit <<= 1)
        styles.append(PvPageNamingStyle(PvPageNamingStyleEnum(bit)).humanReadableName());
    jigs.removeAll(QString());
    styles.removeAll(QString());
    QTest::newRow("jig types") << QStringLiteral("PvJigType") << jigs;
    QTest::newRow("page naming styles") << QStringLiteral("PvPageNamingStyle") << styles;
}

// Every name the library shows has an English text in the context of its class.
void TestTranslations::everyNameTranslated()
{
    QFETCH(QString, context);
    QFETCH(QStringList, names);

    QTranslator english;
    QVERIFY(english.load(QLocale(QLocale::English), PvProductPropertiesTranslations::fileBaseName(),
                         QStringLiteral("_"), QStringLiteral(":/i18n")));
    QVERIFY(!names.isEmpty());
    for (const QString& name : names) {
        const QString translated = english.translate(context.toUtf8().constData(), name.toUtf8().constData());
        QVERIFY2(!translated.isEmpty(), qPrintable(name));
    }
}

void TestTranslations::unknownLanguageKeepsTheLoadedOne()
{
    QVERIFY(PvProductPropertiesTranslations::load(QLocale(QLocale::English)));
    QVERIFY(!PvProductPropertiesTranslations::load(QLocale(QLocale::Swahili)));
    QCOMPARE(PvJigType(PvJigTypeFrame).describe(), QStringLiteral("Frame"));
    QVERIFY(PvProductPropertiesTranslations::load(QLocale(QLocale::German)));
    QCOMPARE(PvJigType(PvJigTypeFrame).describe(), QStringLiteral("Rahmen"));
}

QTEST_GUILESS_MAIN(TestTranslations)
#include "tst_translations.moc"
