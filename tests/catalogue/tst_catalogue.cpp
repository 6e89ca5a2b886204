// The generated catalogues that benchmarks and profiling runs load: they must be what real
// catalogues are, or the figures measure something else.
#include "PvCatalogueGenerator.h"
#include "PvProductTypeConfigRegistryAbstract.h"
#include "PvProductTypeDescription.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

namespace {
class DirRegistry : public PvProductTypeConfigRegistryAbstract
{
public:
    explicit DirRegistry(const QString& dir) : m_dir(dir) { load(); }
    QList<QDir> supervisedDirs() const override { return { m_dir }; }
    QDir m_dir;
};

// One file of the given index alone in a directory.
bool writeOne(const QTemporaryDir& dir, int index)
{
    QFile file(dir.filePath(PvCatalogueGenerator::fileName(index)));
    return file.open(QIODevice::WriteOnly) && file.write(PvCatalogueGenerator::productFile(index)) > 0;
}
}

class TestCatalogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shapes_data();
    void shapes();
    void lintsClean_data();
    void lintsClean();
    void manyFiles();
    void unwritableDirectory();
};

void TestCatalogue::shapes_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("articleClass");
    QTest::addColumn<QString>("coverType");
    QTest::addColumn<int>("surroundings");
    QTest::addColumn<QString>("group");

    QTest::newRow("photo book") << 0 << "photobook" << "hardcover" << 6 << "";
    QTest::newRow("photo book, later variation") << 4 * 7 << "photobook" << "linen" << 6 << "";
    QTest::newRow("calendar") << 1 << "calendar" << "spiral" << 2 << "";
    QTest::newRow("wall decor") << 2 << "poster" << "wall" << 5 << "Premium Poster (matt)";
    QTest::newRow("wall decor, acrylic") << 4 * 2 + 2 << "acrylic" << "wall" << 5 << "Poster hinter Acryl-Glas";
    QTest::newRow("card") << 3 << "card" << "folded" << 3 << "";
}

void TestCatalogue::shapes()
{
    QFETCH(int, index);
    QFETCH(QString, articleClass);
    QFETCH(QString, coverType);
    QFETCH(int, surroundings);
    QFETCH(QString, group);

    const QByteArray content = PvCatalogueGenerator::productFile(index);
    QVERIFY2(content.size() >= 3 * 1024 && content.size() <= 7 * 1024, QByteArray::number(content.size()).constData());
    QTemporaryDir dir;
    QVERIFY(writeOne(dir, index));
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    const DirRegistry registry(dir.path());
    const PvProductType type(PvCatalogueGenerator::productName(index));
    QCOMPARE(registry.allProducts(), PvProductTypeList{ type });
    const PvProductTypeDescription* description = registry.description(type);
    QVERIFY(description->isValid());
    QCOMPARE(description->articleClass().encodeCSV(), articleClass);
    QCOMPARE(description->coverType().encodeCSV(), coverType);
    QCOMPARE(description->surroundings().size(), surroundings);
    QCOMPARE(description->classification().group().value(), group);
    // Every page query runs without a warning, as it does for real products.
    QVERIFY(!registry.pageTypes(type, 24).isEmpty());
}

void TestCatalogue::lintsClean_data()
{
    QTest::addColumn<int>("first");
    for (int first = 0; first < 3 * PvCatalogueGenerator::ShapeCount * 5; first += PvCatalogueGenerator::ShapeCount * 5)
        QTest::addRow("files %d to %d", first, first + PvCatalogueGenerator::ShapeCount * 5 - 1) << first;
}

// The checker knows every name the readers take, so a misspelt element or value in the
// generator shows here, where the lenient loader would silently drop it.
void TestCatalogue::lintsClean()
{
    QFETCH(int, first);
    QTemporaryDir dir;
    for (int index = first; index < first + PvCatalogueGenerator::ShapeCount * 5; ++index)
        QVERIFY(writeOne(dir, index));
    QProcess lint;
    lint.start(QStringLiteral(PV_TOOL), { QStringLiteral("lint"), QStringLiteral("--data"), QStringLiteral(PV_SAMPLE), QStringLiteral("--strict"),
                                          QStringLiteral("--format=json"), dir.path() });
    QVERIFY(lint.waitForFinished(60000));
    const QByteArray out = lint.readAllStandardOutput();
    QVERIFY2(lint.exitCode() == 0, out.constData());
    const QJsonObject report = QJsonDocument::fromJson(out).object();
    QCOMPARE(report.value(QStringLiteral("files")).toInt(), PvCatalogueGenerator::ShapeCount * 5);
}

void TestCatalogue::manyFiles()
{
    constexpr int count = 200;
    QTemporaryDir dir;
    const qint64 bytes = PvCatalogueGenerator::write(dir.path(), count);
    qint64 onDisk = 0;
    const QFileInfoList files = QDir(dir.path()).entryInfoList(QDir::Files, QDir::Name);
    for (const QFileInfo& file : files)
        onDisk += file.size();
    QCOMPARE(bytes, onDisk);
    QCOMPARE(files.size(), count);
    // Names sort in index order, so that a catalogue of n files is the first n of a larger one.
    QCOMPARE(files.first().fileName(), PvCatalogueGenerator::fileName(0));
    QCOMPARE(files.last().fileName(), PvCatalogueGenerator::fileName(count - 1));

    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    const DirRegistry registry(dir.path());
    QCOMPARE(registry.allProducts().size(), count);
    for (int index = 0; index < count; ++index)
        QVERIFY2(registry.isValid(PvProductType(PvCatalogueGenerator::productName(index))), qPrintable(PvCatalogueGenerator::productName(index)));
}

void TestCatalogue::unwritableDirectory()
{
    QTemporaryDir dir;
    const QString missing = dir.filePath(QStringLiteral("missing"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^could not write .*missing")));
    QCOMPARE(PvCatalogueGenerator::write(missing, 3), -1);
}

QTEST_GUILESS_MAIN(TestCatalogue)
#include "tst_catalogue.moc"
