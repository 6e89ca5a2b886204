#include "PvDirectoryConfig.h"
#include "PvInitializer.h"
#include "PvLegacyProductTypeConfigRegistry.h"
#include "PvProductCheckerRegistry.h"
#include "PvProductPropertiesInitializer.h"
#include "PvProductTypeConfigRegistry.h"
#include "PvProductTypeDescription.h"

#include <QRegularExpression>
#include <QScopeGuard>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <atomic>
#include <memory>
#include <thread>

namespace {
// Loads fixture directories; only "products" holds files that do not load.
class DirRegistry : public PvProductTypeConfigRegistryAbstract
{
public:
    explicit DirRegistry(const QStringList& dirs)
    {
        const QRegularExpression unloadable(QStringLiteral("^could not open \"/.+/products/(broken.xml|empty.xml|image.png)\"$"));
        for (const QString& dir : dirs) {
            m_dirs.append(QDir(QStringLiteral(PV_TESTDATA "/") + dir));
            for (int i = 0; dir == QLatin1String("products") && i < 3; ++i)
                QTest::ignoreMessage(QtWarningMsg, unloadable);
        }
        load();
    }
    QList<QDir> supervisedDirs() const override { return m_dirs; }
    QList<QDir> m_dirs;
};

QStringList split(const char* names)
{
    return QString::fromLatin1(names).split(u',');
}

QString sortedNames(const PvProductTypeList& types)
{
    QStringList names;
    for (const PvProductType& type : types)
        names.append(type.name());
    names.sort();
    return names.join(u',');
}

// "name:binding:validity" of every loaded product, sorted by name.
QString contents(const PvProductTypeConfigRegistryAbstract& registry)
{
    QStringList entries;
    for (const PvProductType& type : registry.allProducts()) {
        const PvProductTypeDescription* description = registry.description(type);
        entries.append(type.name() + u':' + description->coverType().encodeCSV() + QLatin1String(description->isValid() ? ":valid" : ":invalid"));
    }
    entries.sort();
    return entries.join(u' ');
}

const char* const updatesFirst = "::invalid book-a4:layflat:valid card-easy:folded:valid mug-a:hardcover:invalid poster-a2:wall:valid";

std::atomic<int> unopened { 0 };
QtMessageHandler testHandler = nullptr;

void countUnopened(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (message.startsWith(QLatin1String("could not open ")))
        ++unopened;
    else
        testHandler(type, context, message);
}
}

class TestRegistry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_registry = std::make_unique<DirRegistry>(split("products-updates,products")); }
    void loading_data();
    void loading();
    void lookups_data();
    void lookups();
    void allAvailableProducts();
    void sharedStrings();
    void legacy_data();
    void legacy();
    void singletonLoadsOnce();

private:
    std::unique_ptr<DirRegistry> m_registry;
};

void TestRegistry::loading_data()
{
    QTest::addColumn<QStringList>("dirs");
    QTest::addColumn<QString>("expected");
    QTest::newRow("updates first") << split("products-updates,products") << updatesFirst;
    QTest::newRow("bundled first") << split("products,products-updates")
                                   << "::invalid book-a4:hardcover:valid card-easy:folded:valid mug-a:hardcover:invalid poster-a2:wall:valid";
    QTest::newRow("missing directory") << split("nowhere,products-updates") << "book-a4:layflat:valid";
    QTest::newRow("no directories") << QStringList() << "";
}

void TestRegistry::loading()
{
    QFETCH(QStringList, dirs);
    QFETCH(QString, expected);
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    QCOMPARE(contents(DirRegistry(dirs)), expected);
}

void TestRegistry::lookups_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<quint64>("articleClass");
    QTest::addColumn<bool>("isVoid");
    QTest::addColumn<bool>("bookOrPoster");
    QTest::newRow("valid book") << "book-a4" << true << quint64(PvArticleClassPhotobook) << false << true;
    QTest::newRow("valid card") << "card-easy" << true << quint64(PvArticleClassCard) << false << false;
    QTest::newRow("invalid but loaded") << "mug-a" << false << quint64(0) << false << false;
    QTest::newRow("file without product") << "" << false << quint64(0) << false << false;
    QTest::newRow("second product of a file") << "card-other" << false << quint64(0) << true << false;
    QTest::newRow("unknown") << "vase" << false << quint64(0) << true << false;
}

void TestRegistry::lookups()
{
    QFETCH(QString, type);
    QFETCH(bool, valid);
    QFETCH(quint64, articleClass);
    QFETCH(bool, isVoid);
    QFETCH(bool, bookOrPoster);
    const PvProductType productType(type);
    QCOMPARE(m_registry->isValid(productType), valid);
    QCOMPARE(m_registry->exists(productType), valid);
    QCOMPARE(quint64(m_registry->articleClass(productType).toUnderlying()), articleClass);
    QCOMPARE(m_registry->description(productType) == m_registry->voidDescription(), isVoid);
    QCOMPARE(m_registry->hasArticleClass(productType, PvArticleClass(QStringLiteral("photobook,poster"))), bookOrPoster);
    // The first valid of a list is the first valid type after this one.
    const PvProductTypeList list { productType, PvProductType(QStringLiteral("mug-a")), PvProductType(QStringLiteral("poster-a2")) };
    QCOMPARE(m_registry->firstValidProduct(list), valid ? productType : PvProductType(QStringLiteral("poster-a2")));
    QCOMPARE(m_registry->firstValidProduct(list.mid(0, 2)), valid ? productType : PvProductType());
}

void TestRegistry::allAvailableProducts()
{
    PvProductCheckerRegistry& checkers = PvProductCheckerRegistry::instance();
    QCOMPARE(sortedNames(m_registry->allAvailableProducts()), QString());
    DirRegistry updatesOnly(split("products-updates"));
    const auto cleanup = qScopeGuard([&] {
        checkers.unregisterChecker(m_registry.get());
        checkers.unregisterChecker(&updatesOnly);
    });
    checkers.registerChecker(m_registry.get());
    QCOMPARE(sortedNames(m_registry->allAvailableProducts()), QLatin1String("book-a4,card-easy,poster-a2"));
    // Every checker of the kind must agree.
    checkers.registerChecker(&updatesOnly);
    QCOMPARE(sortedNames(m_registry->allAvailableProducts()), QLatin1String("book-a4"));
}

void TestRegistry::sharedStrings()
{
    // Products of one family repeat their pictures and names; loaded together they keep one
    // copy of each, and what they answer stays their own.
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    for (const char* name : { "first", "second" }) {
        QFile file(dir.filePath(QString::fromLatin1(name) + QLatin1String(".xml")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        const QByteArray product = QByteArray(name);
        file.write("<products><product name='" + product + "' class='photobook' binding='hardcover'><pages>cover_front,run</pages>"
                   + "<surroundings><surrounding pageType='page' image='shade-" + product + "-only.png'/>"
                   + "<surrounding pageType='cover_front' image='surroundings/common-shade.png' variant='matt,glossy'/>"
                   + "</surroundings></product></products>");
    }
    class Registry : public PvProductTypeConfigRegistryAbstract
    {
    public:
        explicit Registry(const QString& path) : m_dir(path) { load(); }
        QList<QDir> supervisedDirs() const override { return { m_dir }; }
        QDir m_dir;
    } registry(dir.path());
    QList<PvSurroundingDescriptionList> lists;
    for (const char* name : { "first", "second" })
        lists.append(registry.description(PvProductType(QString::fromLatin1(name)))->surroundings());
    QCOMPARE(lists.at(0).size(), 2);
    QCOMPARE(lists.at(1).size(), 2);
    QCOMPARE(lists.at(0).at(0).imageResource(), QStringLiteral("shade-first-only.png"));
    QCOMPARE(lists.at(1).at(0).imageResource(), QStringLiteral("shade-second-only.png"));
    QCOMPARE(lists.at(0).at(1).imageResource(), QStringLiteral("surroundings/common-shade.png"));
    QCOMPARE(lists.at(1).at(1).imageResource().constData(), lists.at(0).at(1).imageResource().constData());
}

void TestRegistry::legacy_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("replacement");
    QTest::addColumn<quint32>("strategy");
    QTest::newRow("combined strategy") << "book-old" << "book-a4" << quint32(PvRewriteOneToTwoSides | PvRewriteSplitInTwoProjects);
    QTest::newRow("list with unknown part") << "calendar-old" << "calendar-new" << quint32(PvRewriteOneToTwoSides | PvRewriteEasyToVario);
    QTest::newRow("no strategy") << "card-old" << "card-easy" << 0u;
    QTest::newRow("current product") << "book-a4" << "" << 0u;
}

void TestRegistry::legacy()
{
    QFETCH(QString, type);
    QFETCH(QString, replacement);
    QFETCH(quint32, strategy);
    PvDirectoryConfig::instance().setDataRoot(QDir(QStringLiteral(PV_TESTDATA)));
    const PvLegacyProductTypeConfigRegistry& registry = PvLegacyProductTypeConfigRegistry::instance();
    QCOMPARE(registry.replacedByProduct(PvProductType(type)), PvProductType(replacement));
    QCOMPARE(registry.conversionStrategy(PvProductType(type)).toUnderlying(), strategy);
}

void TestRegistry::singletonLoadsOnce()
{
    PvDirectoryConfig::instance().setDataRoot(QDir(QStringLiteral(PV_TESTDATA)));
    constexpr int threadCount = 8;
    QSemaphore ready;
    QSemaphore go;
    std::array<PvProductTypeConfigRegistry*, threadCount> seen {};
    std::vector<std::thread> threads; // joined, so that ThreadSanitizer sees the results handed over
    testHandler = qInstallMessageHandler(countUnopened);
    for (int i = 0; i < threadCount; ++i) {
        threads.emplace_back([&, i] {
            ready.release();
            go.acquire();
            seen[i] = &PvProductTypeConfigRegistry::instance();
        });
    }
    ready.acquire(threadCount);
    go.release(threadCount);
    for (auto& thread : threads)
        thread.join();
    qInstallMessageHandler(testHandler);

    PvProductTypeConfigRegistry& registry = PvProductTypeConfigRegistry::instance();
    QCOMPARE(unopened.load(), 3);
    QCOMPARE(std::count(seen.cbegin(), seen.cend(), &registry), threadCount);
    QCOMPARE(contents(registry), QLatin1String(updatesFirst));

    // Start-up makes the registry the product checker of its kind.
    const QList<PvInitializerAbstract*> initializers = PvInitializer::instance().initializers();
    const auto ours = std::find_if(initializers.cbegin(), initializers.cend(),
                                   [](PvInitializerAbstract* candidate) { return dynamic_cast<PvProductPropertiesInitializer*>(candidate); });
    QVERIFY(ours != initializers.cend());
    PvProductCheckerRegistry& checkers = PvProductCheckerRegistry::instance();
    QVERIFY(!checkers.isValid(PvProductType(QStringLiteral("book-a4")), 4));
    (*ours)->setup({});
    const auto cleanup = qScopeGuard([&] { checkers.unregisterChecker(&registry); });
    QVERIFY(checkers.isValid(PvProductType(QStringLiteral("book-a4")), 4));
    QVERIFY(!checkers.isValid(PvProductType(QStringLiteral("mug-a")), 4));
}

QTEST_GUILESS_MAIN(TestRegistry)
#include "tst_registry.moc"
