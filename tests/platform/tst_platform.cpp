#include "PvArticleVariants.h"
#include "PvCoverType.h"
#include "PvCSSSkinManager.h"
#include "PvDirectoryConfig.h"
#include "PvDistance.h"
#include "PvInitializer.h"
#include "PvInitializerAbstract.h"
#include "PvPageContext.h"
#include "PvPlatformIndependent.h"
#include "PvProductChecker.h"
#include "PvProductCheckerRegistry.h"
#include "PvSingleton.h"
#include "PvTestXml.h"
#include "PvXMLBasedRegistry.h"
#include "PvXMLBuilder.h"
#include "PvXMLLoader.h"
#include "PvXMLParser.h"

#include <QDomDocument>
#include <QFile>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>
#include <QThread>

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

namespace {
void writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

// Slow to construct, so that threads asking at once would construct it twice without the lock.
class SlowSingleton : public PvSingleton<SlowSingleton>
{
public:
    static inline std::atomic<int> constructed { 0 };
    static inline std::atomic<int> setUp { 0 };

protected:
    void setupInstance() override { ++setUp; }

private:
    friend class PvSingleton<SlowSingleton>;
    SlowSingleton()
    {
        QThread::msleep(50);
        ++constructed;
    }
};

class FixedChecker : public PvProductChecker
{
public:
    FixedChecker(int kind, bool valid) : m_kind(kind), m_valid(valid) { }
    bool isValid(const PvProductType&) const override { return m_valid; }
    int type() const override { return m_kind; }
    bool isValidBoxStyle(const PvProductType&, const PvArticleVariants&) const override { return true; }

private:
    int m_kind;
    bool m_valid;
};

class CountingRegistry : public PvXMLBasedRegistry
{
public:
    CountingRegistry(const QDir& dir, bool recursive) : PvXMLBasedRegistry(QStringLiteral("ts"), recursive), m_dir(dir) { }
    bool parseXML(const QFileInfo& file, bool) override
    {
        loaded.append(file.fileName());
        return !PvXMLLoader::loadDocumentElement(file).isNull();
    }
    QList<QDir> supervisedDirectories() const override { return { m_dir }; }
    QStringList loaded;

private:
    QDir m_dir;
};

class RecordingInitializer : public PvInitializerAbstract
{
public:
    RecordingInitializer(QStringList* log, const QString& name) : m_log(log), m_name(name) { }
    void setup(PvInitializerOption) override { m_log->append(QStringLiteral("setup ") + m_name); }
    void teardown() override { m_log->append(QStringLiteral("teardown ") + m_name); }

private:
    QStringList* m_log;
    QString m_name;
};
}

class TestPlatform : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void boolAttribute_data();
    void boolAttribute();
    void intAttribute_data();
    void intAttribute();
    void numbers_data();
    void numbers();
    void otherReaders();
    void rectReaders_data();
    void rectReaders();
    void builder();
    void loader_data();
    void loader();
    void directoryListing();
    void xmlBasedRegistry();
    void checkerRegistryMask_data();
    void checkerRegistryMask();
    void singletonFromManyThreads();
    void initializerOrder();
    void directoryConfig();
    void valueTypes();
};

void TestPlatform::boolAttribute_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<bool>("defaultValue");
    QTest::addColumn<bool>("expected");
    QTest::newRow("missing keeps default") << "<e/>" << true << true;
    QTest::newRow("true") << "<e a='true'/>" << false << true;
    QTest::newRow("TRUE with blanks") << "<e a=' TRUE '/>" << false << true;
    QTest::newRow("1") << "<e a='1'/>" << false << true;
    QTest::newRow("yes") << "<e a='Yes'/>" << false << true;
    QTest::newRow("false") << "<e a='false'/>" << true << false;
    QTest::newRow("0") << "<e a='0'/>" << true << false;
    QTest::newRow("no") << "<e a='NO'/>" << true << false;
    QTest::newRow("garbage keeps default") << "<e a='maybe'/>" << true << true;
    QTest::newRow("empty keeps default") << "<e a=''/>" << false << false;
}

void TestPlatform::boolAttribute()
{
    QFETCH(QString, xml);
    QFETCH(bool, defaultValue);
    QFETCH(bool, expected);
    QCOMPARE(PvXMLParser::boolAttribute(element(xml), QStringLiteral("a"), defaultValue), expected);
}

void TestPlatform::intAttribute_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<int>("expected");
    QTest::newRow("missing") << "<e/>" << -7;
    QTest::newRow("plain") << "<e a='42'/>" << 42;
    QTest::newRow("negative") << "<e a='-3'/>" << -3;
    QTest::newRow("plus sign") << "<e a='+5'/>" << 5;
    QTest::newRow("blanks") << "<e a=' 12 '/>" << 12;
    QTest::newRow("hex is not decimal") << "<e a='0x10'/>" << -7;
    QTest::newRow("fraction") << "<e a='1.5'/>" << -7;
    QTest::newRow("overflow") << "<e a='2147483648'/>" << -7;
    QTest::newRow("minimum") << "<e a='-2147483648'/>" << int(INT_MIN);
    QTest::newRow("text") << "<e a='ten'/>" << -7;
}

void TestPlatform::intAttribute()
{
    QFETCH(QString, xml);
    QFETCH(int, expected);
    QCOMPARE(PvXMLParser::intAttribute(element(xml), QStringLiteral("a"), -7), expected);
}

void TestPlatform::numbers_data()
{
    QTest::addColumn<QString>("text");
    // Short plain numbers take a path of their own; they must read as Qt reads them: rounding
    // ("0.3"), the sign of zero, the longest and the first too long, and forms left to Qt.
    for (const char* text : { "3.5", "0.3", "-0.0", " 2.5 ", "99999999999999.9", "1234567890123456.5", "1.", ".5", "1e3", "1.2.3", "" })
        QTest::newRow(text) << QString::fromLatin1(text);
    QTest::newRow("list with blanks") << " 1, 2 ,\t3 ";
    QTest::newRow("list with holes and junk") << "1,,x,1.5,4";
    QTest::newRow("list beyond int") << "2147483648,-2147483648,2147483647";
}

void TestPlatform::numbers()
{
    QFETCH(QString, text);
    QDomDocument document;
    QDomElement e = document.createElement(QStringLiteral("e"));
    e.setAttribute(QStringLiteral("a"), text);
    bool ok = false;
    const double qtValue = text.trimmed().toDouble(&ok);
    const double expected = ok ? qtValue : -1.5;
    // Bit for bit: QCOMPARE on doubles forgives the last digits, and the sign of zero.
    const auto bits = [](double value) { return qFromUnaligned<quint64>(&value); };
    QCOMPARE(bits(PvXMLParser::doubleAttribute(e, QStringLiteral("a"), -1.5)), bits(expected));

    QList<int> expectedList;
    for (const QString& part : text.simplified().split(u',', Qt::SkipEmptyParts)) {
        const int number = part.toInt(&ok, 10);
        if (ok)
            expectedList.append(number);
    }
    QCOMPARE(PvXMLParser::intList(text), expectedList);
}

void TestPlatform::otherReaders()
{
    const QDomElement e = element(QStringLiteral("<e a=' x ' deg='89.6' bad='north' nan='nan' d='12.5' x='1' z='-2'><n> 17 </n><m>x</m></e>"));
    QCOMPARE(PvXMLParser::attribute(e, QStringLiteral("a"), QString(), true), QStringLiteral("x"));
    QCOMPARE(PvXMLParser::attribute(e, QStringLiteral("a"), QString(), false), QStringLiteral(" x "));
    QCOMPARE(PvXMLParser::attribute(e, QStringLiteral("missing"), QStringLiteral("dflt"), true), QStringLiteral("dflt"));
    QCOMPARE(PvXMLParser::readAngle(e, QStringLiteral("deg"), 270), 90);
    QCOMPARE(PvXMLParser::readAngle(e, QStringLiteral("bad"), 270), 270);
    QCOMPARE(PvXMLParser::readAngle(e, QStringLiteral("nan"), 270), 270);
    QCOMPARE(PvXMLParser::readAngle(e, QStringLiteral("missing"), 270), 270);
    QCOMPARE(PvXMLParser::readDistance(e, QStringLiteral("d"), 50.0, PvDistanceUnit(PvMillimetre)), PvDistance(12.5, PvDistanceUnit(PvMillimetre)));
    QCOMPARE(PvXMLParser::readDistance(e, QStringLiteral("missing"), 50.0, PvDistanceUnit()), PvDistance(50.0));
    QCOMPARE(PvXMLParser::readVector3D(e), QVector3D(1, 0, -2));
    QCOMPARE(PvXMLParser::readVector3D(element(QStringLiteral("<e/>")), QVector3D(4, 5, 6)), QVector3D(4, 5, 6));
    QCOMPARE(PvXMLParser::intText(e, QStringLiteral("n"), 3), 17);
    QCOMPARE(PvXMLParser::intText(e, QStringLiteral("m"), 3), 3);
    QCOMPARE(PvXMLParser::intText(e, QStringLiteral("missing"), 3), 3);
}

void TestPlatform::rectReaders_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<QSize>("size");
    QTest::newRow("none present gives defaults") << "<e/>" << QRect(1, 2, 3, 4) << QSize(5, 6);
    QTest::newRow("all present") << "<e x='10' y='20' width='30' height='40'/>" << QRect(10, 20, 30, 40) << QSize(30, 40);
    QTest::newRow("missing ones are 0") << "<e width='30'/>" << QRect(0, 0, 30, 0) << QSize(30, 0);
    QTest::newRow("unparsable is 0") << "<e x='a' y='2'/>" << QRect(0, 2, 0, 0) << QSize(5, 6);
    QTest::newRow("beyond int is clamped") << "<e x='1e20' width='-1e20' height='nan'/>" << QRect(INT_MAX, 0, INT_MIN, 0) << QSize(INT_MIN, 0);
}

void TestPlatform::rectReaders()
{
    QFETCH(QString, xml);
    QFETCH(QRect, rect);
    QFETCH(QSize, size);
    const QDomElement e = element(xml);
    QCOMPARE(PvXMLParser::readRect(e, QRect(1, 2, 3, 4)), rect);
    if (qstrcmp(QTest::currentDataTag(), "beyond int is clamped") != 0)
        QCOMPARE(PvXMLParser::readRectF(e, QRectF(1, 2, 3, 4)), QRectF(rect));
    QCOMPARE(PvXMLParser::readSize(e, QSize(5, 6)), size);
}

void TestPlatform::builder()
{
    QDomDocument document;
    QDomElement root = document.createElement(QStringLiteral("root"));
    document.appendChild(root);
    const QDomElement child = PvXMLBuilder::buildDomElement(root, QStringLiteral("pagetype"), QStringLiteral("left"));
    QCOMPARE(root.firstChildElement(QStringLiteral("pagetype")), child);
    QCOMPARE(child.text(), QStringLiteral("left"));
}

void TestPlatform::loader_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("rootTag");
    QTest::addColumn<int>("children");
    QTest::newRow("well-formed") << QByteArray("<?xml version='1.0'?><products><product/></products>") << "products" << 1;
    QTest::newRow("empty") << QByteArray() << QString() << 0;
    QTest::newRow("not well-formed") << QByteArray("<products><product></products>") << QString() << 0;
    QTest::newRow("binary") << QByteArray("\x89PNG\r\n\x1a\n\0\0\0", 11) << QString() << 0;
    // Larger files are read into the heap rather than onto the stack; every byte must arrive.
    QTest::newRow("large") << "<products>" + QByteArray("<product name='x'/>").repeated(5000) + "</products>" << "products" << 5000;
    const QString utf16 = QStringLiteral("<?xml version='1.0' encoding='UTF-16'?><products><product/><product/></products>");
    QTest::newRow("UTF-16") << QByteArray("\xff\xfe", 2) + QByteArray(reinterpret_cast<const char*>(utf16.utf16()), utf16.size() * 2) << "products" << 2;
}

void TestPlatform::loader()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, rootTag);
    QFETCH(int, children);
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("file.xml"));
    writeFile(path, content);
    const QDomElement root = PvXMLLoader::loadDocumentElement(QFileInfo(path));
    QCOMPARE(root.isNull(), rootTag.isEmpty());
    QCOMPARE(root.tagName(), rootTag);
    QCOMPARE(root.childNodes().count(), children);
    QVERIFY(PvXMLLoader::loadDocumentElement(dir.filePath(QStringLiteral("missing.xml"))).isNull());
}

void TestPlatform::directoryListing()
{
    QTemporaryDir dir;
    for (const char* name : { "b.xml", "B.xml", "a.txt", "a.xml", ".hidden.xml", "\xc3\xa4.xml" })
        writeFile(dir.filePath(QString::fromUtf8(name)), "<x/>");
    QVERIFY(QDir(dir.path()).mkdir(QStringLiteral("sub.xml")));
    writeFile(dir.filePath(QStringLiteral("sub.xml/inner.xml")), "<x/>");

    auto names = [](const QFileInfoList& files) {
        QStringList result;
        for (const QFileInfo& file : files)
            result.append(file.fileName());
        return result;
    };
    const PvPlatformIndependent& platform = PvPlatformIndependent::instance();
    QCOMPARE(names(platform.getDirectFilesInDirectoryAsFileInfos(QDir(dir.path()), {})),
             QStringList({ QStringLiteral("B.xml"), QStringLiteral("a.txt"), QStringLiteral("a.xml"), QStringLiteral("b.xml"), QString::fromUtf8("\xc3\xa4.xml") }));
    QCOMPARE(names(platform.getDirectFilesInDirectoryAsFileInfos(QDir(dir.path()), { QStringLiteral("*.xml") })),
             QStringList({ QStringLiteral("B.xml"), QStringLiteral("a.xml"), QStringLiteral("b.xml"), QString::fromUtf8("\xc3\xa4.xml") }));
    QVERIFY(platform.getDirectFilesInDirectoryAsFileInfos(QDir(dir.filePath(QStringLiteral("missing"))), {}).isEmpty());
}

void TestPlatform::xmlBasedRegistry()
{
    QTemporaryDir dir;
    QVERIFY(QDir(dir.path()).mkdir(QStringLiteral("sub")));
    writeFile(dir.filePath(QStringLiteral("z_de_.ts")), "<TS/>");
    writeFile(dir.filePath(QStringLiteral("sub/a_de_.ts")), "<TS/>");
    writeFile(dir.filePath(QStringLiteral("broken_de_.ts")), "<TS>");
    writeFile(dir.filePath(QStringLiteral("other.xml")), "<TS/>");

    CountingRegistry flat(QDir(dir.path()), false);
    QCOMPARE(flat.nameFilter(), QStringList(QStringLiteral("*.ts")));
    QVERIFY(flat.init());
    QCOMPARE(flat.loaded, QStringList({ QStringLiteral("broken_de_.ts"), QStringLiteral("z_de_.ts") }));

    CountingRegistry deep(QDir(dir.path()), true);
    QVERIFY(deep.init());
    QCOMPARE(deep.loaded, QStringList({ QStringLiteral("a_de_.ts"), QStringLiteral("broken_de_.ts"), QStringLiteral("z_de_.ts") }));

    CountingRegistry named(QDir(dir.path()), true);
    QVERIFY(named.loadFiles({ QStringLiteral("a_de_.ts") }, false));
    QVERIFY(!named.loadFiles({ QStringLiteral("a_de_.ts"), QStringLiteral("broken_de_.ts") }, false));
    QVERIFY(!named.loadFiles({ QStringLiteral("missing.ts") }, false));
}

void TestPlatform::checkerRegistryMask_data()
{
    QTest::addColumn<QList<int>>("kinds");
    QTest::addColumn<QList<bool>>("answers");
    QTest::addColumn<int>("mask");
    QTest::addColumn<bool>("expected");
    QTest::newRow("no checker") << QList<int>() << QList<bool>() << 7 << false;
    QTest::newRow("one valid") << QList<int> { 4 } << QList<bool> { true } << 7 << true;
    QTest::newRow("kind outside mask") << QList<int> { 8 } << QList<bool> { true } << 7 << false;
    QTest::newRow("invalid outside mask ignored") << QList<int> { 4, 8 } << QList<bool> { true, false } << 7 << true;
    QTest::newRow("one inside says no") << QList<int> { 4, 2 } << QList<bool> { true, false } << 7 << false;
}

void TestPlatform::checkerRegistryMask()
{
    QFETCH(QList<int>, kinds);
    QFETCH(QList<bool>, answers);
    QFETCH(int, mask);
    QFETCH(bool, expected);
    std::vector<std::unique_ptr<FixedChecker>> checkers;
    PvProductCheckerRegistry& registry = PvProductCheckerRegistry::instance();
    for (int i = 0; i < kinds.size(); ++i) {
        checkers.push_back(std::make_unique<FixedChecker>(kinds.at(i), answers.at(i)));
        registry.registerChecker(checkers.back().get());
    }
    const bool valid = registry.isValid(PvProductType(QStringLiteral("x")), mask);
    for (const auto& checker : checkers)
        registry.unregisterChecker(checker.get());
    QCOMPARE(valid, expected);
}

void TestPlatform::singletonFromManyThreads()
{
    constexpr int threadCount = 8;
    QSemaphore ready;
    QSemaphore go;
    std::array<SlowSingleton*, threadCount> seen {};
    std::vector<std::thread> threads; // joined, so that ThreadSanitizer sees the results handed over
    for (int i = 0; i < threadCount; ++i) {
        threads.emplace_back([&, i] {
            ready.release();
            go.acquire();
            seen[i] = &SlowSingleton::instance();
        });
    }
    ready.acquire(threadCount);
    go.release(threadCount);
    for (auto& thread : threads)
        thread.join();
    QCOMPARE(SlowSingleton::constructed.load(), 1);
    QCOMPARE(SlowSingleton::setUp.load(), 1);
    for (SlowSingleton* instance : seen)
        QCOMPARE(instance, &SlowSingleton::instance());
}

void TestPlatform::initializerOrder()
{
    QStringList log;
    RecordingInitializer first(&log, QStringLiteral("first"));
    RecordingInitializer second(&log, QStringLiteral("second"));
    PvInitializer& initializer = PvInitializer::instance();
    initializer.registerInitializer(&first);
    initializer.registerInitializer(&second);
    initializer.registerInitializer(&first);
    initializer.setupAll();
    initializer.teardownAll();
    QCOMPARE(log, QStringList({ QStringLiteral("setup first"), QStringLiteral("setup second"), QStringLiteral("teardown second"), QStringLiteral("teardown first") }));
}

void TestPlatform::directoryConfig()
{
    PvDirectoryConfig& config = PvDirectoryConfig::instance();
    config.setDataRoot(QDir(QStringLiteral("/data/root")));
    QCOMPARE(config.productsDir(true).path(), QStringLiteral("/data/root/products-updates"));
    QCOMPARE(config.productsDir(false).path(), QStringLiteral("/data/root/products"));
    QCOMPARE(config.resource(QStringLiteral("products/legacy"), false), QStringLiteral("/data/root/resources/products/legacy"));
    QCOMPARE(config.resource(QStringLiteral("colors.xml"), true), QStringLiteral("/data/root/resources/colors.xml"));
    QCOMPARE(config.thumbnailsDir().path(), QStringLiteral("/data/root/thumbnails"));
    QCOMPARE(config.thematicTranslationDirs(), QList<QDir>({ QDir(QStringLiteral("/data/root/translations")) }));
    config.setProductsDir(false, QDir(QStringLiteral("/elsewhere")));
    QCOMPARE(config.productsDir(false).path(), QStringLiteral("/elsewhere"));
    QCOMPARE(config.productsDir(true).path(), QStringLiteral("/data/root/products-updates"));
}

void TestPlatform::valueTypes()
{
    QCOMPARE(PvDistance(25.4, PvDistanceUnit(PvMillimetre)).to(PvDistanceUnit(PvInch)).value(), 1.0);
    QCOMPARE(PvDistance(5.0, PvDistanceUnit(PvCentimetre)).to(PvDistanceUnit(PvTenthMillimetre)).value(), 500.0);
    QCOMPARE(PvDistanceUnit(PvInch).humanReadableName(), QStringLiteral("Zoll"));

    QCOMPARE(PvArticleVariants(QStringLiteral(" b, a,,b ")), PvArticleVariants(QStringLiteral("a,b")));
    QCOMPARE(PvArticleVariants(QStringLiteral(" b, a,,b ")).toString(), QStringLiteral("a,b"));
    QVERIFY(!PvArticleVariants(QStringLiteral(" , ")).isValid());

    const PvPageContext leftPage { PvPageType(PvPageTypePageLeft), PvPageAlignment(PvPageAlignmentLeft) };
    QVERIFY(leftPage.matchesWith(PvPageContext(PvPageType(PvPageTypePage), PvPageAlignment(PvPageAlignmentEnum(PvPageAlignmentLeft | PvPageAlignmentRight)))));
    QVERIFY(!leftPage.matchesWith(PvPageContext(PvPageType(PvPageTypeSpine), PvPageAlignment(PvPageAlignmentLeft))));
    QVERIFY(!leftPage.matchesWith(PvPageContext(PvPageType(PvPageTypePage), PvPageAlignment(PvPageAlignmentRight))));

    QVERIFY(PvCoverType(QStringLiteral("wall")).isSimplex());
    QVERIFY(PvCoverType(QStringLiteral("hardcover, folded")).isSimplex());
    QVERIFY(!PvCoverType(QStringLiteral("hardcover")).isSimplex());

    QCOMPARE(PvCSSSkinManager::instance().backgroundColor(), QColor(Qt::white));
}

QTEST_GUILESS_MAIN(TestPlatform)
#include "tst_platform.moc"
