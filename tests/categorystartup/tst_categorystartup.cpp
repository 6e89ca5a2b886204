#include "PvDirectoryConfig.h"
#include "PvLocaleAndTranslationManager.h"
#include "PvThematicCategoryRegistry.h"
#include "PvThematicCategorySet.h"
#include "PvThematicCategoryTranslationRegistry.h"

#include <QTest>

// What a fresh process sees: the first keys, and loading after a change of language.
class TestCategoryStartup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstUse();
};

void TestCategoryStartup::firstUse()
{
    PvLocaleAndTranslationManager& manager = PvLocaleAndTranslationManager::instance();
    PvDirectoryConfig::instance().setThematicTranslationDirs({ QDir(QDir::cleanPath(QStringLiteral(PV_TESTDATA "/../categories/translations"))) });
    manager.setLanguageChanged(true);
    manager.setThematicTranslations(QStringLiteral(
        "<TS language='de'><context><message><source>Advent</source><translation>Adventszeit</translation>"
        "</message></context></TS>"));

    PvThematicCategoryRegistry& registry = PvThematicCategoryRegistry::instance();
    QCOMPARE(registry.key(QStringLiteral("Advent")), 1);
    QCOMPARE(registry.key(QStringLiteral("Ostern")), 2);
    QCOMPARE(registry.key(QStringLiteral("ADVENTSZEIT")), 1);
    QCOMPARE(registry.key(QStringLiteral("Wedding")), 3);

    // Bundled translations plus the download packages' file, and nothing else.
    const QLocale german(QLocale::German, QLocale::Germany);
    QCOMPARE(registry.visibleName(1), QStringLiteral("Adventszeit"));
    QCOMPARE(registry.visibleName(2), QStringLiteral("Ostern (Paket)"));
    QCOMPARE(PvThematicCategoryTranslationRegistry::instance().translation(QStringLiteral("Wedding"), german),
             QStringLiteral("Wedding"));

    // Choosing an item's category interns the special categories, even when multicolour wins.
    const PvThematicCategorySet multiColored(PvThematicCategory::multiColor());
    QCOMPARE(multiColored.preferredCategory(true), PvThematicCategory::multiColor());
    // 4 multicolour, 5 and 6 the user's cliparts and designs, 7 show-all, 8 the recycle bin.
    QCOMPARE(registry.key(QStringLiteral("Papierkorb")), 8);
}

QTEST_GUILESS_MAIN(TestCategoryStartup)
#include "tst_categorystartup.moc"
