#include "PvDiagnosticCollector.h"
#include "PvProductTypeDescription.h"
#include "PvProductTypeDescriptionReader.h"
#include "PvThematicCategoryColorTable.h"
#include "PvThematicCategoryTranslationRegistry.h"
#include "PvXMLLoader.h"

#include <QDirIterator>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

namespace {
const QString sample = QStringLiteral(PV_SAMPLE);

struct Run {
    int exitCode = -1;
    QByteArray out;
    QString err;
};

// An empty working directory: no fixture lies below it, wherever the checkout is, so the tool
// names fixture files by absolute paths.
QString outsideFixtures()
{
    static const QTemporaryDir dir;
    return dir.path();
}

Run pvproducts(const QString& workingDirectory, const QStringList& arguments)
{
    QProcess process;
    process.setWorkingDirectory(workingDirectory);
    process.start(QStringLiteral(PV_TOOL), arguments);
    if (!process.waitForFinished(60000))
        return {};
    return { process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1, process.readAllStandardOutput(),
             QString::fromUtf8(process.readAllStandardError()) };
}

bool copyTree(const QString& from, const QString& to)
{
    QDirIterator it(from, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString source = it.next();
        const QString target = to + QLatin1Char('/') + QDir(from).relativeFilePath(source);
        if (!QDir().mkpath(QFileInfo(target).path()) || !QFile::copy(source, target))
            return false;
    }
    return true;
}

QStringList asList(const QJsonValue& value)
{
    if (value.isArray()) {
        QStringList list;
        for (const QJsonValue& item : value.toArray())
            list.append(item.toString());
        return list;
    }
    return { value.toString() };
}

// "file:line severity: message (did you mean ...)" of a JSON finding, as people read it.
QString describe(const QJsonObject& f)
{
    QString text = QStringLiteral("%1:%2 %3 %4").arg(f.value(QStringLiteral("file")).toString()).arg(f.value(QStringLiteral("line")).toInt())
                       .arg(f.value(QStringLiteral("severity")).toString(), f.value(QStringLiteral("message")).toString());
    if (f.contains(QStringLiteral("suggestion")))
        text += QStringLiteral(" (did you mean \"%1\"?)").arg(f.value(QStringLiteral("suggestion")).toString());
    return text;
}

QJsonArray findingsOf(const Run& run)
{
    return QJsonDocument::fromJson(run.out).object().value(QStringLiteral("findings")).toArray();
}
}

class TestLint : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mistakes_data();
    void mistakes();
    void brokenCatalogue();
    void sarif();
    void sampleIsClean();
    void usage_data();
    void usage();
};

void TestLint::mistakes_data()
{
    QTest::addColumn<QJsonObject>("mistake");
    QFile file(QStringLiteral(PV_TESTDATA "/mistakes.json"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QJsonArray mistakes = QJsonDocument::fromJson(file.readAll()).array();
    QVERIFY(mistakes.size() >= 40);
    for (const QJsonValue& mistake : mistakes)
        QTest::newRow(qPrintable(mistake.toObject().value(QStringLiteral("name")).toString())) << mistake.toObject();
}

// Each mistake is applied to a copy of the sample catalogue; lint must report exactly the
// expected findings, and everything the loader reports on the same files.
void TestLint::mistakes()
{
    QFETCH(QJsonObject, mistake);
    QTemporaryDir root;
    QVERIFY(copyTree(sample, root.path()));
    const QString file = mistake.value(QStringLiteral("file")).toString();
    const QString target = mistake.value(QStringLiteral("target")).toString(file);
    QFile original(root.filePath(file));
    QVERIFY(original.open(QIODevice::ReadOnly));
    QString text = QString::fromUtf8(original.readAll());
    original.close();
    const QStringList finds = asList(mistake.value(QStringLiteral("find")));
    const QStringList replaces = asList(mistake.value(QStringLiteral("replace")));
    for (int i = 0; i < finds.size(); ++i) {
        if (finds.at(i) == QLatin1String("*"))
            text.clear();
        else if (!finds.at(i).isEmpty()) {
            QVERIFY2(text.contains(finds.at(i)), qPrintable(finds.at(i)));
            text.replace(finds.at(i), replaces.at(i));
        }
    }
    if (target != file && !mistake.value(QStringLiteral("keep")).toBool())
        QVERIFY(original.remove());
    QDir().mkpath(QFileInfo(root.filePath(target)).path());
    QFile edited(root.filePath(target));
    QVERIFY(edited.open(QIODevice::WriteOnly | QIODevice::Truncate));
    edited.write(text.toUtf8());
    edited.close();

    const Run run = pvproducts(root.path(), { QStringLiteral("--data"), QStringLiteral("."), QStringLiteral("lint"), QStringLiteral("--json") });
    const QJsonArray findings = findingsOf(run);
    QStringList actual;
    for (const QJsonValue& f : findings)
        actual.append(describe(f.toObject()));
    const QStringList expected = asList(mistake.value(QStringLiteral("expect")));
    QVERIFY2(actual.size() == expected.size(), qPrintable(actual.join(QLatin1Char('\n'))));
    for (int i = 0; i < expected.size(); ++i) {
        const QString& e = expected.at(i);
        const QString prefix = e.contains(QLatin1String(".xml:")) ? QString() : target + QLatin1Char(':');
        const QString line = e.section(QLatin1Char(' '), 0, 1);
        const QString rest = e.section(QLatin1Char(' '), 2);
        QVERIFY2(actual.at(i).startsWith(prefix + line + QLatin1Char(' ')) && actual.at(i).contains(rest),
                 qPrintable(QStringLiteral("expected %1%2\n     got %3").arg(prefix, e, actual.at(i))));
    }
    const int errors = int(std::count_if(findings.cbegin(), findings.cend(), [](const QJsonValue& f) {
        return f.toObject().value(QStringLiteral("severity")).toString() == QLatin1String("error");
    }));
    QCOMPARE(run.exitCode, errors > 0 ? 1 : 0);

    // One truth: whatever the loader reports on the directory, lint reports with the same words.
    if (!target.endsWith(QLatin1String(".xml")) && !target.endsWith(QLatin1Char('~')) && !target.endsWith(QLatin1String(".ts")))
        return;
    PvDiagnosticCollector collector;
    if (target.startsWith(QLatin1String("resources/colors"))) {
        collector.setFile(root.filePath(target));
        (void)PvThematicCategoryColorTable(PvXMLLoader::loadDocumentElement(QFileInfo(root.filePath(target))));
    } else if (target.endsWith(QLatin1String(".ts"))) {
        collector.setFile(root.filePath(target));
        QString localeName;
        QHash<QString, QString> translations;
        const QDomElement ts = PvXMLLoader::loadDocumentElement(QFileInfo(root.filePath(target)));
        if (!ts.isNull() && ts.tagName() == QLatin1String("TS") && !ts.attribute(QStringLiteral("language")).isEmpty()
            && !ts.firstChildElement(QStringLiteral("context")).isNull())
            (void)PvThematicCategoryTranslationRegistry::readTranslations(ts, &localeName, &translations);
        else {
            // The reader warns with its fixed texts about a file it rejects.
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^No ")));
            (void)PvThematicCategoryTranslationRegistry::readTranslations(ts, &localeName, &translations);
        }
    } else {
        const auto descriptions = PvProductTypeDescriptionReader(QDir(QFileInfo(root.filePath(target)).path())).readDir();
        qDeleteAll(descriptions);
    }
    for (const PvDiagnostic& d : collector.diagnostics()) {
        const QString name = QDir(root.path()).relativeFilePath(d.file);
        const bool found = std::any_of(findings.cbegin(), findings.cend(), [&](const QJsonValue& v) {
            const QJsonObject f = v.toObject();
            return f.value(QStringLiteral("file")).toString() == name && f.value(QStringLiteral("message")).toString() == d.message
                && f.value(QStringLiteral("severity")).toString() == PvDiagnostic::severityName(d.severity)
                && f.value(QStringLiteral("line")).toInt() <= d.line;
        });
        QVERIFY2(found, qPrintable(QStringLiteral("the loader says what lint does not: ") + d.toString()));
    }
}

// Every finding of the broken fixture catalogue, in order: an extra, a lost or a moved finding fails.
void TestLint::brokenCatalogue()
{
    const QStringList expected = {
        QStringLiteral("products/a-not-xml.xml:3:1: error: not well-formed XML: Expected '>' or '/', but got '<'; the file is skipped"),
        QStringLiteral("products/b-no-product.xml:1:1: error: no \"product\" element: the file loads as a product with an empty name and default values"),
        QStringLiteral("products/c-typos.xml:3:3: error: product \"typos\" is not valid: \"class\" must name exactly one known article class"),
        QStringLiteral("products/c-typos.xml:3:25: error: attribute \"class\": unknown article class \"photobok\" counts as nothing (did you mean \"photobook\"?)"),
        QStringLiteral("products/c-typos.xml:3:62: error: attribute \"horizontalPages\": \"maybe\" is not true or false; the default is used"),
        QStringLiteral("products/c-typos.xml:3:86: error: attribute \"foldsafetymargin\": \"wide\" is not a whole number; the default is used"),
        QStringLiteral("products/c-typos.xml:3:110: error: unknown attribute \"colour\" on \"product\" is ignored"),
        QStringLiteral("products/c-typos.xml:4:5: error: the text of \"pages\": an empty entry stands for an illegal page"),
        QStringLiteral("products/c-typos.xml:4:5: error: the text of \"pages\": unknown page type \"spinee\" counts as nothing (did you mean \"spine\"?)"),
        QStringLiteral("products/c-typos.xml:5:5: error: the text of \"productionnumbering\": \"x\" is not a whole number and is skipped"),
        QStringLiteral("products/c-typos.xml:7:24: error: attribute \"from\": \"1-10000000\" spans more than 100000 pages; the redirect is skipped"),
        QStringLiteral("products/c-typos.xml:8:7: error: \"contentredirect\" has no attribute \"to\"; the redirect is skipped"),
        QStringLiteral("products/c-typos.xml:10:5: error: unknown element \"editorAbilites\" in \"product\" is ignored (did you mean \"editorAbilities\"?)"),
        QStringLiteral("products/c-typos.xml:12:7: error: the text of \"pageNamingStyle\": unknown page naming style \"bok\" counts as nothing (did you mean \"book\"?)"),
        QStringLiteral("products/c-typos.xml:13:13: error: unknown jig type \"backdrop\" is ignored"),
        QStringLiteral("products/c-typos.xml:15:16: error: a mesh needs at least one \"textureTarget\"; the product gets no 3D preview"),
        QStringLiteral("products/d-dup.xml:1:11: error: \"product\" has no \"pages\": its page list is one illegal page"),
        QStringLiteral("products/e-dup.xml:1:1: error: product type \"dup\" is defined again in this directory; this file sorts later and replaces the earlier one"),
        QStringLiteral("products/e-dup.xml:1:11: error: \"product\" has no \"pages\": its page list is one illegal page"),
        QStringLiteral("resources/products/legacy/old.xml:1:11: error: \"product\" has no \"pages\": its page list is one illegal page"),
        QStringLiteral("resources/products/legacy/old.xml:1:61: error: \"replacedBy\" names no known product: \"nowhere\""),
        QStringLiteral("6 files checked: 21 errors, 0 warnings"),
        QString(),
    };
    const Run run = pvproducts(QStringLiteral(PV_BROKEN), { QStringLiteral("--data"), QStringLiteral("."), QStringLiteral("lint") });
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(QString::fromUtf8(run.out).split(QLatin1Char('\n')), expected);
}

// The fields that SARIF 2.1.0 requires, with the types it requires, and a fix per suggestion.
void TestLint::sarif()
{
    const Run run = pvproducts(QStringLiteral(PV_BROKEN), { QStringLiteral("--data"), QStringLiteral("."), QStringLiteral("lint"), QStringLiteral("--format=sarif") });
    QCOMPARE(run.exitCode, 1);
    const QJsonObject log = QJsonDocument::fromJson(run.out).object();
    QCOMPARE(log.value(QStringLiteral("version")).toString(), QStringLiteral("2.1.0"));
    const QJsonArray runs = log.value(QStringLiteral("runs")).toArray();
    QCOMPARE(runs.size(), 1);
    const QJsonObject sarifRun = runs.first().toObject();
    QVERIFY(!sarifRun.value(QStringLiteral("tool")).toObject().value(QStringLiteral("driver")).toObject().value(QStringLiteral("name")).toString().isEmpty());
    const QJsonArray results = sarifRun.value(QStringLiteral("results")).toArray();
    QCOMPARE(results.size(), 21);
    int fixes = 0;
    for (const QJsonValue& value : results) {
        const QJsonObject result = value.toObject();
        QVERIFY(!result.value(QStringLiteral("message")).toObject().value(QStringLiteral("text")).toString().isEmpty());
        QVERIFY(QStringList({ QStringLiteral("none"), QStringLiteral("note"), QStringLiteral("warning"), QStringLiteral("error") })
                    .contains(result.value(QStringLiteral("level")).toString()));
        const QJsonObject location = result.value(QStringLiteral("locations")).toArray().first().toObject().value(QStringLiteral("physicalLocation")).toObject();
        QVERIFY(!location.value(QStringLiteral("artifactLocation")).toObject().value(QStringLiteral("uri")).toString().isEmpty());
        const QJsonObject region = location.value(QStringLiteral("region")).toObject();
        QVERIFY(region.value(QStringLiteral("startLine")).toInt() >= 1);
        QVERIFY(region.value(QStringLiteral("startColumn")).toInt() >= 1);
        for (const QJsonValue& fix : result.value(QStringLiteral("fixes")).toArray()) {
            const QJsonArray changes = fix.toObject().value(QStringLiteral("artifactChanges")).toArray();
            QVERIFY(!changes.isEmpty());
            for (const QJsonValue& change : changes) {
                QVERIFY(change.toObject().contains(QStringLiteral("artifactLocation")));
                const QJsonArray replacements = change.toObject().value(QStringLiteral("replacements")).toArray();
                QVERIFY(!replacements.isEmpty());
                const QJsonObject deleted = replacements.first().toObject().value(QStringLiteral("deletedRegion")).toObject();
                QVERIFY(deleted.value(QStringLiteral("startLine")).toInt() >= 1);
                QVERIFY(deleted.value(QStringLiteral("endColumn")).toInt() > deleted.value(QStringLiteral("startColumn")).toInt());
            }
            ++fixes;
        }
    }
    // photobok, spinee, editorAbilites and bok have a near name.
    QCOMPARE(fixes, 4);
}

void TestLint::sampleIsClean()
{
    const Run run = pvproducts(sample, { QStringLiteral("lint"), QStringLiteral("--strict"), QStringLiteral("--json") });
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(findingsOf(run).isEmpty(), run.out.constData());
    QVERIFY(QJsonDocument::fromJson(run.out).object().value(QStringLiteral("files")).toInt() >= 40);
}

void TestLint::usage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("firstLine");

    const QString broken = QStringLiteral(PV_BROKEN);
    QTest::newRow("data root one level too low") << QStringList { QStringLiteral("--data"), broken + QStringLiteral("/products"), QStringLiteral("lint") } << 2
                                                 << QString();
    QTest::newRow("unknown format") << QStringList { QStringLiteral("lint"), QStringLiteral("--format=xml") } << 2 << QString();
    QTest::newRow("missing path") << QStringList { QStringLiteral("lint"), QStringLiteral("no/such/file.xml") } << 2 << QString();
    QTest::newRow("a file given is the file checked")
        << QStringList { QStringLiteral("lint"), broken + QStringLiteral("/products/c-typos.xml") } << 1
        << broken + QStringLiteral("/products/c-typos.xml:3:3: error: product \"typos\" is not valid: \"class\" must name exactly one known article class");
    QTest::newRow("json stays a synonym") << QStringList { QStringLiteral("lint"), QStringLiteral("--json"), broken + QStringLiteral("/products/b-no-product.xml") } << 1
                                          << QStringLiteral("{");
}

void TestLint::usage()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, exitCode);
    QFETCH(QString, firstLine);
    const Run run = pvproducts(outsideFixtures(), arguments);
    QCOMPARE(run.exitCode, exitCode);
    if (exitCode == 2)
        QVERIFY2(run.err.startsWith(QLatin1String("pvproducts: ")), qPrintable(run.err));
    else
        QCOMPARE(QString::fromUtf8(run.out).section(QLatin1Char('\n'), 0, 0), firstLine);
}

QTEST_GUILESS_MAIN(TestLint)
#include "tst_lint.moc"
