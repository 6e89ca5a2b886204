#include "PvBasisSettings.h"
#include "PvDirectoryConfig.h"
#include "PvHumanReadable.h"
#include "PvLocaleAndTranslationManager.h"
#include "PvThematicCategory.h"
#include "PvThematicCategoryList.h"
#include "PvThematicCategoryRegistry.h"
#include "PvThematicCategorySet.h"
#include "PvThematicCategoryTranslationRegistry.h"

#include <QCoreApplication>
#include <QDomDocument>
#include <QRegularExpression>
#include <QTest>
#include <QTranslator>

#include <atomic>
#include <thread>

using Category = PvThematicCategory;
using CategorySet = PvThematicCategorySet;
Q_DECLARE_METATYPE(Category)
Q_DECLARE_METATYPE(CategorySet)

static char* toString(const Category& category)
{
    return QTest::toString(QStringLiteral("%1 (%2)").arg(category.internalName()).arg(category.hashValue()));
}

namespace {
const QLocale german(QLocale::German, QLocale::Germany);
const QLocale english(QLocale::English, QLocale::UnitedStates);

PvThematicCategoryTranslationRegistry& translations()
{
    return PvThematicCategoryTranslationRegistry::instance();
}

// Translates one template text only, to show when PvHumanReadable asks for translations.
class OneTextTranslator : public QTranslator
{
public:
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        return qstrcmp(context, "PvHumanReadable") == 0 && qstrcmp(source, "Kunststoff Weiß") == 0
            ? QStringLiteral("Plastic white")
            : QString();
    }
    bool isEmpty() const override { return false; }
};

// Restores the German locale when a test that switched it ends, passed or not.
struct LocaleScope
{
    explicit LocaleScope(const QLocale& locale) { PvLocaleAndTranslationManager::instance().setLocale(locale); }
    ~LocaleScope() { PvLocaleAndTranslationManager::instance().setLocale(german); }
};
}

class TestCategories : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void translationFiles_data();
    void translationFiles();
    void translation_data();
    void translation();
    void furtherSources();
    void humanReadableInMasterMode();
    void aliasesMerge_data();
    void aliasesMerge();
    void registryKeys();
    void spotColors_data();
    void spotColors();
    void colors_data();
    void colors();
    void alphabetical_data();
    void alphabetical();
    void setQueries();
    void preferredCategory_data();
    void preferredCategory();
    void listsAndXml();
    void templateNames();
    void manyThreadsShareKeys();

private:
    int m_firstKey = 0;
};

void TestCategories::initTestCase()
{
    PvDirectoryConfig::instance().setThematicTranslationDirs({ QDir(QStringLiteral(PV_TESTDATA "/translations")) });
    PvDirectoryConfig::instance().setResourceDir(QDir(QStringLiteral(PV_TESTDATA)));
    PvLocaleAndTranslationManager::instance().setLocale(german);
    m_firstKey = PvThematicCategoryRegistry::instance().key(QStringLiteral("Erste Kategorie"));
    QVERIFY(translations().loadFiles({ QStringLiteral("categories_en_US.ts"), QStringLiteral("categories_en_GB.ts") }, false));
}

void TestCategories::translationFiles_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("warning");
    QTest::newRow("lower-case root") << "lowercase.ts" << "No TS element at beginning.";
    QTest::newRow("not well-formed") << "truncated.ts" << "No TS element at beginning.";
    QTest::newRow("missing file") << "absent.ts" << "No TS element at beginning.";
    QTest::newRow("no language") << "nolanguage.ts" << "No language attribute.";
    QTest::newRow("empty language") << "emptylanguage.ts" << "No language attribute.";
    QTest::newRow("no context") << "nocontext.ts" << "No contextElement element after TS.";
    QTest::newRow("context without messages") << "empty-context.ts" << "";
}

void TestCategories::translationFiles()
{
    QFETCH(QString, file);
    QFETCH(QString, warning);
    if (warning.isEmpty())
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    else
        QTest::ignoreMessage(QtWarningMsg, warning.toUtf8().constData());
    QCOMPARE(translations().parseXML(QFileInfo(QStringLiteral(PV_TESTDATA "/broken/") + file), false), warning.isEmpty());
}

void TestCategories::translation_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("expected");
    const QLocale austrian(QLocale::German, QLocale::Austria);
    const QLocale british(QLocale::English, QLocale::UnitedKingdom);
    QTest::newRow("plain") << "Wedding" << german << "Hochzeit";
    QTest::newRow("request simplified") << " Wedding  " << german << "Hochzeit";
    QTest::newRow("metallic variant") << "Gold_metallic" << german << "Goldveredelung";
    QTest::newRow("language default locale") << "Wedding" << austrian << "Hochzeit";
    QTest::newRow("metallic kept without own table") << "Gold_metallic" << austrian << "Gold_metallic";
    QTest::newRow("file source with blanks") << "Meine Cliparts" << english << "My Cliparts";
    QTest::newRow("bare language code") << "Favoriten" << british << "Favourites";
    QTest::newRow("empty translation skipped") << "Winter" << british << "Winter season";
    QTest::newRow("empty translation, no fallback") << "Winter" << german << "Winter";
    QTest::newRow("later source replaces") << "Frames" << german << "Rahmen";
    QTest::newRow("unfinished counts") << "Anniversary" << german << "Jahrestag";
    QTest::newRow("second context ignored") << "Herbst" << german << "Herbst";
    QTest::newRow("unknown text unchanged") << "Unbekannt  Name" << german << "Unbekannt  Name";
}

void TestCategories::translation()
{
    QFETCH(QString, text);
    QFETCH(QLocale, locale);
    QFETCH(QString, expected);
    QCOMPARE(translations().translation(text, locale), expected);
}

void TestCategories::furtherSources()
{
    PvLocaleAndTranslationManager& manager = PvLocaleAndTranslationManager::instance();
    const QLocale french(QLocale::French, QLocale::France);
    QCOMPARE(translations().translation(QStringLiteral("Papierkorb"), french), QStringLiteral("Papierkorb"));
    manager.setLanguageCode(QStringLiteral("fr"));
    const bool loaded = translations().loadDLPCategoryTSFiles();
    manager.setLanguageCode(QStringLiteral("xx"));
    const bool loadedUnknown = translations().loadDLPCategoryTSFiles();
    manager.setLanguageCode(QStringLiteral("de"));
    QVERIFY(loaded);
    QVERIFY(!loadedUnknown);
    QCOMPARE(translations().translation(QStringLiteral("Papierkorb"), french), QStringLiteral("Corbeille"));
    // The name filter keeps the language of its first use.
    QCOMPARE(translations().nameFilter(), QStringList(QStringLiteral("*_de_*.ts")));

    manager.setThematicTranslations(QStringLiteral(
        "<TS language='nl'><context><message><source>Zee</source><translation>Zee (nl)</translation></message>"
        "</context></TS>"));
    QVERIFY(translations().initFromZIP());
    QCOMPARE(translations().translation(QStringLiteral("Zee"), QLocale(QLocale::Dutch)), QStringLiteral("Zee (nl)"));
    manager.setThematicTranslations(QStringLiteral("<TS"));
    QTest::ignoreMessage(QtWarningMsg, "No TS element at beginning.");
    QVERIFY(!translations().initFromZIP());
}

void TestCategories::humanReadableInMasterMode()
{
    const Category favourites = Category::favourites();
    const CategorySet set(favourites);
    LocaleScope scope(english);
    QCOMPARE(translations().toVisibleStringList(set), QStringList(QStringLiteral("Favourites")));
    PvBasisSettings::instance().setRunsInMasterMode(true);
    const QString masterText = translations().humanReadable(favourites);
    PvBasisSettings::instance().setRunsInMasterMode(false);
    QCOMPARE(masterText, QStringLiteral("Favourites (Favoriten)"));
}

void TestCategories::aliasesMerge_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("alias");
    QTest::addColumn<QString>("visible");
    QTest::newRow("German content and English tag") << german << "Hochzeit" << "Wedding" << "Hochzeit";
    QTest::newRow("English content and German tag") << english << "Christmas" << "Weihnachten" << "Christmas";
}

void TestCategories::aliasesMerge()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, first);
    QFETCH(QString, alias);
    QFETCH(QString, visible);
    LocaleScope scope(locale);
    const Category category(first);
    QCOMPARE(Category(alias), category);
    QCOMPARE(Category(visible.toUpper()), category);
    QCOMPARE(Category(first.toLower()), category);
    QCOMPARE(category.internalName(), alias);
    QCOMPARE(category.visibleName(), visible);
}

void TestCategories::registryKeys()
{
    PvThematicCategoryRegistry& registry = PvThematicCategoryRegistry::instance();
    QCOMPARE(m_firstKey, 1);
    const int next = registry.key(QStringLiteral("Zebra"));
    QCOMPARE(registry.key(QStringLiteral("Aal")), next + 1);
    QCOMPARE(registry.key(QStringLiteral("ZEBRA")), next);
    QVERIFY(Category(QStringLiteral("Zebra")) < Category(QStringLiteral("Aal")));
    QCOMPARE(registry.internalName(next), QStringLiteral("Zebra"));
    QVERIFY(registry.internalName(0).isEmpty() && registry.visibleName(0).isEmpty());

    const Category empty(QString{});
    QVERIFY(empty.isEmpty() && empty != Category());
    QCOMPARE(Category(QString{}), empty);

    // Nothing merges into the internal categories.
    const Category frames = Category::frames();
    QVERIFY(Category(QStringLiteral("Internal frames")) != frames);
    QCOMPARE(frames.internalName(), QStringLiteral("InterneRahmen"));

    Category wedding(QStringLiteral("Wedding"));
    wedding.setVisibleName(QStringLiteral("Trauung"));
    QCOMPARE(wedding.visibleName(), QStringLiteral("Trauung"));
    QVERIFY(Category(QStringLiteral("Trauung")) != wedding);
    wedding.setVisibleName(QString());
    QCOMPARE(wedding.visibleName(), QStringLiteral("Hochzeit"));
}

void TestCategories::spotColors_data()
{
    QTest::addColumn<int>("spotColor");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("roundTrip");
    QTest::newRow("none") << 0 << "" << 0;
    QTest::newRow("unknown value") << 16 << "" << 0;
    QTest::newRow("emboss") << 1 << "Effektlack" << 1;
    QTest::newRow("gold") << 2 << "Gold" << 2;
    QTest::newRow("silver") << 4 << "Silber" << 4;
    QTest::newRow("rose gold") << 8 << "Roségold" << 8;
}

void TestCategories::spotColors()
{
    QFETCH(int, spotColor);
    QFETCH(QString, name);
    QFETCH(int, roundTrip);
    const Category category = Category::fromSpotColor(PvSpotColor(spotColor));
    QCOMPARE(category.internalName(), name);
    QCOMPARE(category.toSpotColor().value(), roundTrip);
    QCOMPARE(category.isSpotColorCategory(), roundTrip != 0);
    if (!name.isEmpty())
        QCOMPARE(Category(name.toLower()), category);
    else
        QCOMPARE(category, Category());
}

void TestCategories::colors_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("rgb");
    QTest::addColumn<QString>("sortKey");
    QTest::newRow("saturated") << "Rot" << "#ff0000" << "3 0ffff";
    QTest::newRow("nested entry") << "Blau" << "#0000ff" << "3f0ffff";
    QTest::newRow("grey") << "Grau" << "#808080" << "2 0 080";
    QTest::newRow("hue with three digits") << "Magenta" << "#ff00ff" << "312cffff";
    QTest::newRow("later entry wins") << "Gruen" << "#00ff00" << "378ffff";
    QTest::newRow("metallic variant") << "Rot_metallic" << "#ff0000" << "3 0ffff";
    QTest::newRow("invalid entry falls back") << "Blau_metallic" << "#0000ff" << "3f0ffff";
    QTest::newRow("any nine characters dropped") << "Rosenholzx" << "#112233" << "3d2aa33";
    QTest::newRow("eleven characters") << "Roxxxxxxxxx" << "#102030" << "3d2aa30";
    QTest::newRow("nine characters") << "Rxxxxxxxx" << "" << "2 0 0 0";
    QTest::newRow("absent") << "Lila" << "" << "2 0 0 0";
}

void TestCategories::colors()
{
    QFETCH(QString, name);
    QFETCH(QString, rgb);
    QFETCH(QString, sortKey);
    const QColor color = Category::color(name);
    QCOMPARE(color.isValid(), !rgb.isEmpty());
    if (color.isValid())
        QCOMPARE(color.name(), rgb);
    QCOMPARE(Category(name).colorSortKey(), sortKey);
}

void TestCategories::alphabetical_data()
{
    QTest::addColumn<Category>("a");
    QTest::addColumn<Category>("b");
    QTest::addColumn<bool>("before");
    const Category early(QStringLiteral("Abend"));
    QTest::newRow("user category before capital") << Category::userCliparts() << early << true;
    QTest::newRow("capital after user category") << early << Category::userCliparts() << false;
    QTest::newRow("lower case after user category") << Category(QStringLiteral("apfel")) << Category::userMask() << false;
    QTest::newRow("two user categories") << Category::userLayouts() << Category::userCliparts() << false;
    QTest::newRow("case-sensitive") << Category(QStringLiteral("Zebra")) << Category(QStringLiteral("apfel")) << true;
}

void TestCategories::alphabetical()
{
    QFETCH(Category, a);
    QFETCH(Category, b);
    QFETCH(bool, before);
    QCOMPARE(Category::compareAlphabetically(a, b), before);
}

void TestCategories::setQueries()
{
    const CategorySet csv = CategorySet::buildFromCSV(QStringLiteral(",Gold,,Silber,"));
    QCOMPARE(csv, CategorySet(QList<Category> { Category::gold(), Category::silver() }));
    QVERIFY(CategorySet::buildFromCSV(QString()).isEmpty());
    QVERIFY(!CategorySet::buildFromCSV(QStringLiteral(" Silber")).contains(Category::silver()));
    QVERIFY(CategorySet::fromSpotColors({ PvSpotColor(0) }).isCategory(Category()));
    QCOMPARE(csv.spotColor().value(), 0);
    QCOMPARE(CategorySet(Category::silver()).spotColor().value(), 4);
    QVERIFY(csv.containsOnlySpotColorCategories() && csv.contains(CategorySet()) && !csv.containsAtLeastOne(CategorySet()));
    QVERIFY(CategorySet(QList<Category> { Category::favourites(), Category::suggestedByAI() }).containsOnlyFavouritesAnd({}));
    QVERIFY(!csv.containsOnlyFavouritesAnd(CategorySet(Category::gold())));
    QVERIFY(csv.plusFavourites().containsOnlyFavouritesAnd(csv));

    CategorySet various = csv;
    various.insertCategoryVarious();
    QCOMPARE(various, csv);
    various.clear();
    various.insertCategoryVarious();
    QVERIFY(various.isCategory(Category(QStringLiteral("Sonstige"))));
    various.insertNonEmpty(Category());
    QVERIFY(!various.insertOnlyOnce(Category::gold()) && various.insertOnlyOnce(Category::gold()));
    QCOMPARE(various.subtract(csv).size(), 1);

    QVERIFY(Category(QStringLiteral("Mittig")).isSmartLayoutCategory());
}

void TestCategories::preferredCategory_data()
{
    QTest::addColumn<CategorySet>("set");
    QTest::addColumn<bool>("preferMultiColor");
    QTest::addColumn<Category>("expected");
    const Category holiday(QStringLiteral("Urlaub"));
    const auto set = [](std::initializer_list<Category> categories) { return CategorySet(QList<Category>(categories)); };
    QTest::newRow("empty") << CategorySet() << true << Category();
    QTest::newRow("user cliparts") << set({ Category::favourites(), Category::userCliparts() }) << false << Category::userCliparts();
    QTest::newRow("cliparts before styles") << set({ Category::userBookStyles(), Category::userCliparts() }) << false << Category::userCliparts();
    QTest::newRow("user styles") << set({ Category::userBookStyles(), Category::multiColor() }) << true << Category::userBookStyles();
    QTest::newRow("multicolour preferred") << set({ Category::gold(), Category::multiColor() }) << true << Category::multiColor();
    QTest::newRow("multicolour not preferred") << set({ Category::gold(), Category::multiColor() }) << false << Category::gold();
    QTest::newRow("special skipped") << set({ Category::favourites(), Category::frames(), holiday }) << false << holiday;
    QTest::newRow("only special") << CategorySet::createRecycleBinCategory() << true << Category::recycleBin();
}

void TestCategories::preferredCategory()
{
    QFETCH(CategorySet, set);
    QFETCH(bool, preferMultiColor);
    QFETCH(Category, expected);
    QCOMPARE(set.preferredCategory(preferMultiColor), expected);
}

void TestCategories::listsAndXml()
{
    PvThematicCategoryList list({ Category::frames(), Category(QStringLiteral("Rot")), Category::passpartouts(),
                                  Category(QStringLiteral("Blau")), Category(QStringLiteral("Lila")),
                                  Category(QStringLiteral("Grau")) });
    list.removePrimaryCategories();
    QCOMPARE(list.size(), 4);
    QCOMPARE(list.first().internalName(), QStringLiteral("Rot"));
    list.sortByColor();
    QStringList order;
    for (const Category& category : std::as_const(list))
        order.append(category.internalName());
    QCOMPARE(order, QStringList({ QStringLiteral("Lila"), QStringLiteral("Grau"), QStringLiteral("Rot"), QStringLiteral("Blau") }));

    QDomDocument document;
    QDomElement parent = document.createElement(QStringLiteral("item"));
    const CategorySet set(QStringList { QStringLiteral("Rot"), QStringLiteral("Gold") });
    set.toXml(parent);
    QCOMPARE(parent.elementsByTagName(QStringLiteral("subcategory")).size(), 2);
    QCOMPARE(QSet<QString>({ parent.firstChild().toElement().text(), parent.lastChild().toElement().text() }),
             QSet<QString>({ QStringLiteral("Gold"), QStringLiteral("Rot") }));

    QString text;
    QDebug(&text) << Category::gold();
    QCOMPARE(text, QStringLiteral("Category name:  \"Gold\" visible name:  \"Goldveredelung\" "));
}

void TestCategories::templateNames()
{
    OneTextTranslator translator;
    QCoreApplication::installTranslator(&translator);
    PvHumanReadable& names = PvHumanReadable::instance();
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(names.templateName(QStringLiteral("plastic_white")), QStringLiteral("Plastic white"));
    QCOMPARE(names.templateName(QStringLiteral("Holzrahmen Gruen")), QStringLiteral("Holzrahmen Grün"));
    QCOMPARE(names.templateName(QStringLiteral("aluline_silver")), QStringLiteral("Aluline Silber"));
    QCOMPARE(names.templateName(QStringLiteral("PLASTIC_WHITE")), QStringLiteral("PLASTIC_WHITE"));
    QCOMPARE(names.templateName(QString()), QString());
}

void TestCategories::manyThreadsShareKeys()
{
    constexpr int threadCount = 8;
    constexpr int nameCount = 2000; // beyond the registry's reserve, so its tables grow meanwhile
    std::atomic<int> waiting { threadCount };
    std::vector<std::vector<int>> keys(threadCount, std::vector<int>(nameCount));
    std::vector<std::thread> threads;
    for (int t = 0; t < threadCount; ++t) {
        threads.emplace_back([&, t] {
            for (--waiting; waiting.load() > 0;)
                std::this_thread::yield();
            // All in the same order, so that threads meet on the same new name.
            for (int n = 0; n < nameCount; ++n) {
                const QString name = QStringLiteral("Parallel %1").arg(n);
                keys[t][n] = int(Category(t % 2 ? name.toUpper() : name).hashValue());
                // Readers and a writer of the translation lock, in and outside the registry's lock.
                (void)Category::favourites().internalName();
                (void)translations().humanReadable(Category(QStringLiteral("Wedding")));
                if (t == 0)
                    translations().addTranslations(QStringLiteral("it_IT"), { { name, name } });
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    QSet<int> distinct;
    for (int n = 0; n < nameCount; ++n) {
        for (int t = 1; t < threadCount; ++t)
            QCOMPARE(keys[t][n], keys[0][n]);
        distinct.insert(keys[0][n]);
    }
    QCOMPARE(distinct.size(), nameCount);
}

QTEST_GUILESS_MAIN(TestCategories)
#include "tst_categories.moc"
