#include <QDirIterator>
#include <QDomDocument>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

namespace {
struct Run {
    int exitCode = -1;
    QByteArray out;
};

Run pvproducts(const QStringList& arguments)
{
    // An empty working directory, so that the tool names every file the same way in each run.
    static const QTemporaryDir cwd;
    QProcess process;
    process.setWorkingDirectory(cwd.path());
    process.start(QStringLiteral(PV_TOOL), arguments);
    if (!process.waitForFinished(300000))
        return {};
    return { process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1, process.readAllStandardOutput() };
}

QJsonValue json(const QStringList& arguments)
{
    const QJsonDocument document = QJsonDocument::fromJson(pvproducts(arguments).out);
    return document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
}

bool copyTree(const QString& from, const QString& to)
{
    QDirIterator it(from, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString target = to + QLatin1Char('/') + QDir(from).relativeFilePath(it.next());
        if (!QDir().mkpath(QFileInfo(target).path()) || !QFile::copy(it.filePath(), target))
            return false;
    }
    return true;
}

// The report's pages are well-formed XML as well as HTML: unescaped text would break them.
QDomDocument parse(const QString& fileName)
{
    QFile file(fileName);
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file)) {
        qWarning("%s is missing or not well-formed", qPrintable(fileName));
        return {};
    }
    return document;
}

QList<QDomElement> elements(const QDomNode& root, const QString& tag)
{
    QList<QDomElement> list;
    const QDomNodeList nodes = root.toElement().elementsByTagName(tag);
    for (int i = 0; i < nodes.size(); ++i)
        list.append(nodes.at(i).toElement());
    return list;
}

QDomElement section(const QDomDocument& page, const QString& id)
{
    for (const QDomElement& s : elements(page.documentElement(), QStringLiteral("section"))) {
        if (s.attribute(QStringLiteral("id")) == id)
            return s;
    }
    return {};
}

// A definition list printed the way "show" prints its facts.
void printFacts(const QDomElement& list, int indent, QString& out)
{
    const QString pad(indent, QLatin1Char(' '));
    for (QDomElement dt = list.firstChildElement(QStringLiteral("dt")); !dt.isNull(); dt = dt.nextSiblingElement(QStringLiteral("dt"))) {
        const QDomElement dd = dt.nextSiblingElement(QStringLiteral("dd"));
        if (!dd.firstChildElement(QStringLiteral("dl")).isNull()) {
            out += pad + dt.text() + QStringLiteral(":\n");
            printFacts(dd.firstChildElement(QStringLiteral("dl")), indent + 2, out);
        } else if (!dd.firstChildElement(QStringLiteral("ol")).isNull()) {
            out += pad + dt.text() + QStringLiteral(":\n");
            const QDomElement ol = dd.firstChildElement(QStringLiteral("ol"));
            for (QDomElement li = ol.firstChildElement(QStringLiteral("li")); !li.isNull(); li = li.nextSiblingElement(QStringLiteral("li"))) {
                out += pad + QStringLiteral("  -\n");
                printFacts(li.firstChildElement(QStringLiteral("dl")), indent + 4, out);
            }
        } else {
            out += pad + dt.text() + QStringLiteral(": ") + dd.text() + QLatin1Char('\n');
        }
    }
}

struct Entry {
    QString group;
    QString page;
};

// The products the index links, with the heading they are listed under.
QHash<QString, Entry> indexEntries(const QString& report)
{
    QHash<QString, Entry> entries;
    const QDomDocument index = parse(report + QStringLiteral("/index.html"));
    QString group;
    for (QDomElement e = index.documentElement().firstChildElement(QStringLiteral("body")).firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
        if (e.tagName() == QLatin1String("h2"))
            group = e.text();
        for (const QDomElement& a : elements(e, QStringLiteral("a")))
            entries.insert(a.text(), { group, QDir(report).filePath(a.attribute(QStringLiteral("href"))) });
    }
    return entries;
}

const char* const hostileNames[] = { "<b>bold</b> & \"quoted\" 'single'", "../../escape/attempt", "a/b\\c", "%1 %2 per%20cent", "CON",
                                     "Poster-A2", "Fotobuch Größe 30×30", ".." };
}

class TestReport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void usage_data();
    void usage();
    void linksResolve_data();
    void linksResolve();
    void productPage_data();
    void productPage();
    void findingAppears();

private:
    QTemporaryDir m_dir;
    QString m_altered;
};

void TestReport::initTestCase()
{
    QVERIFY(m_dir.isValid());
    QCOMPARE(pvproducts({ QStringLiteral("report"), QStringLiteral("--out"), m_dir.filePath(QStringLiteral("sample")) }).exitCode, 0);

    // The sample with one known mistake and products whose names and texts are hostile.
    m_altered = m_dir.filePath(QStringLiteral("altered"));
    QVERIFY(copyTree(QStringLiteral(PV_SAMPLE), m_altered));
    QFile book(m_altered + QStringLiteral("/products/photobook-hardcover-a4.xml"));
    QVERIFY(book.open(QIODevice::ReadOnly));
    QString text = QString::fromUtf8(book.readAll());
    book.close();
    QVERIFY(text.contains(QLatin1String("horizontalPages=")));
    text.replace(QLatin1String("horizontalPages="), QLatin1String("horizontalPagez="));
    QVERIFY(book.open(QIODevice::WriteOnly | QIODevice::Truncate));
    book.write(text.toUtf8());
    book.close();
    int n = 0;
    for (const char* name : hostileNames) {
        QFile file(m_altered + QStringLiteral("/products/hostile-%1.xml").arg(++n));
        QVERIFY(file.open(QIODevice::WriteOnly));
        const QString escaped = QString::fromUtf8(name).toHtmlEscaped().replace(QLatin1Char('\''), QLatin1String("&apos;"));
        file.write(QStringLiteral("<products><product name=\"%1\" class=\"poster\"><pages>page</pages>"
                                  "<pricelist><category>&lt;script&gt;x&lt;/script&gt; &amp;amp; %1</category></pricelist></product></products>")
                       .arg(escaped).toUtf8());
    }
    QFile bare(m_altered + QStringLiteral("/products/no-pages.xml"));
    QVERIFY(bare.open(QIODevice::WriteOnly));
    bare.write("<products><product name=\"no-pages\" class=\"poster\"/></products>");
    bare.close();
    QCOMPARE(pvproducts({ QStringLiteral("--data"), m_altered, QStringLiteral("report"), QStringLiteral("--out"), m_dir.filePath(QStringLiteral("altered-report")) }).exitCode, 0);
}

void TestReport::usage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::newRow("no --out") << QStringList { QStringLiteral("report") } << 2;
    QTest::newRow("empty --out") << QStringList { QStringLiteral("report"), QStringLiteral("--out"), QString() } << 2;
    QTest::newRow("--out names a file") << QStringList { QStringLiteral("report"), QStringLiteral("--out"), QStringLiteral(PV_TOOL) } << 2;
    QTest::newRow("a product type") << QStringList { QStringLiteral("report"), QStringLiteral("poster-a2"), QStringLiteral("--out"), QStringLiteral("x") } << 2;
    QTest::newRow("broken catalogue") << QStringList { QStringLiteral("--data"), QStringLiteral(PV_BROKEN), QStringLiteral("report"), QStringLiteral("--out"), QStringLiteral("TMP/a/b") } << 0;
    QTest::newRow("new nested directory") << QStringList { QStringLiteral("report"), QStringLiteral("--out"), QStringLiteral("TMP/a/b") } << 0;
}

void TestReport::usage()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, exitCode);
    const QTemporaryDir dir;
    arguments.replaceInStrings(QStringLiteral("TMP"), dir.path());
    QCOMPARE(pvproducts(arguments).exitCode, exitCode);
    QCOMPARE(QFileInfo::exists(dir.filePath(QStringLiteral("a/b/index.html"))), exitCode == 0);
}

void TestReport::linksResolve_data()
{
    QTest::addColumn<QString>("report");
    QTest::newRow("sample") << m_dir.filePath(QStringLiteral("sample"));
    QTest::newRow("altered") << m_dir.filePath(QStringLiteral("altered-report"));
}

void TestReport::linksResolve()
{
    QFETCH(QString, report);
    const QString root = QFileInfo(report).canonicalFilePath();
    int pages = 0;
    QDirIterator it(report, { QStringLiteral("*.html") }, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QDomDocument page = parse(it.next());
        QVERIFY2(!page.isNull(), qPrintable(it.filePath()));
        QVERIFY(elements(page.documentElement(), QStringLiteral("script")).isEmpty());
        ++pages;
        for (const QString& tag : { QStringLiteral("a"), QStringLiteral("img"), QStringLiteral("link") }) {
            for (const QDomElement& e : elements(page.documentElement(), tag)) {
                const QString link = e.attribute(tag == QLatin1String("img") ? QStringLiteral("src") : QStringLiteral("href"));
                QVERIFY2(QUrl(link).isRelative() && !link.startsWith(QLatin1Char('/')), qPrintable(link));
                const QFileInfo target(it.fileInfo().dir().filePath(QUrl::fromPercentEncoding(link.toUtf8())));
                QVERIFY2(target.isFile() && target.canonicalFilePath().startsWith(root + QLatin1Char('/')), qPrintable(it.filePath() + QStringLiteral(" -> ") + link));
                QVERIFY2(tag != QLatin1String("img") || !QImage(target.filePath()).isNull(), qPrintable(link));
            }
        }
    }
    QVERIFY(pages > 30);
}

void TestReport::productPage_data()
{
    QTest::addColumn<QString>("data");
    QTest::addColumn<QString>("report");
    QTest::addColumn<QString>("name");
    for (const QJsonValue& product : json({ QStringLiteral("list"), QStringLiteral("--json") }).toArray()) {
        const QString name = product.toObject().value(QStringLiteral("name")).toString();
        QTest::newRow(qPrintable(name)) << QStringLiteral(PV_SAMPLE) << m_dir.filePath(QStringLiteral("sample")) << name;
    }
    const QStringList retired = QString::fromUtf8(pvproducts({ QStringLiteral("legacy") }).out).split(QLatin1Char('\n'), Qt::SkipEmptyParts).mid(1);
    QVERIFY(!retired.isEmpty());
    for (const QString& line : retired) {
        const QString name = line.section(QLatin1Char(' '), 0, 0);
        QTest::newRow(qPrintable(name)) << QStringLiteral(PV_SAMPLE) << m_dir.filePath(QStringLiteral("sample")) << name;
    }
    QTest::newRow("without pages") << m_altered << m_dir.filePath(QStringLiteral("altered-report")) << QStringLiteral("no-pages");
    for (const char* name : hostileNames)
        QTest::newRow(name) << m_altered << m_dir.filePath(QStringLiteral("altered-report")) << QString::fromUtf8(name);
}

// A product's page says what "show", "spiral" and "lint" say, and the index links it under its class.
void TestReport::productPage()
{
    QFETCH(QString, data);
    QFETCH(QString, report);
    QFETCH(QString, name);
    const QJsonObject shown = json({ QStringLiteral("--data"), data, QStringLiteral("show"), name, QStringLiteral("--json") }).toObject();
    QVERIFY(!shown.isEmpty());
    const Entry entry = indexEntries(report).value(name);
    const QString articleClass = shown.value(QStringLiteral("class")).toString();
    QCOMPARE(entry.group, shown.value(QStringLiteral("legacy")).toBool() ? QStringLiteral("Retired products")
                          : articleClass.isEmpty()                         ? QStringLiteral("Without article class")
                                                                           : articleClass);
    QVERIFY2(QRegularExpression(QStringLiteral("^[A-Za-z0-9_.-]+\\.html$")).match(QFileInfo(entry.page).fileName()).hasMatch(), qPrintable(entry.page));
    const QDomDocument page = parse(entry.page);
    QCOMPARE(page.documentElement().firstChildElement(QStringLiteral("body")).firstChildElement(QStringLiteral("h1")).text(), name);

    QString facts;
    printFacts(section(page, QStringLiteral("facts")).firstChildElement(QStringLiteral("dl")), 0, facts);
    QCOMPARE(facts, QString::fromUtf8(pvproducts({ QStringLiteral("--data"), data, QStringLiteral("show"), name }).out));

    // A product without pages gets a sentence instead of a picture.
    const QDomElement pictures = section(page, QStringLiteral("picture"));
    const QDomElement picture = pictures.firstChildElement(QStringLiteral("figure")).firstChildElement(QStringLiteral("img"));
    const QJsonArray pageList = shown.value(QStringLiteral("abstractPageList")).toArray();
    const bool hasPages = std::any_of(pageList.cbegin(), pageList.cend(), [](const QJsonValue& type) { return !type.toString().isEmpty(); });
    QCOMPARE(!QImage(QFileInfo(entry.page).dir().filePath(picture.attribute(QStringLiteral("src")))).isNull(), hasPages);
    QCOMPARE(pictures.firstChildElement(QStringLiteral("p")).isNull(), hasPages);

    const QJsonArray surroundings = shown.value(QStringLiteral("surroundings")).toArray();
    const bool spiral = std::any_of(surroundings.cbegin(), surroundings.cend(), [](const QJsonValue& s) { return s.toObject().contains(QStringLiteral("spiral")); });
    const QDomElement strip = section(page, QStringLiteral("spiral")).firstChildElement(QStringLiteral("figure")).firstChildElement(QStringLiteral("img"));
    QCOMPARE(!strip.isNull(), spiral);
    // "spiral" renders loaded products only.
    if (spiral && !shown.value(QStringLiteral("legacy")).toBool()) {
        const QTemporaryDir dir;
        QCOMPARE(pvproducts({ QStringLiteral("--data"), data, QStringLiteral("spiral"), name, QStringLiteral("--out"), dir.filePath(QStringLiteral("s.png")) }).exitCode, 0);
        QCOMPARE(QImage(QFileInfo(entry.page).dir().filePath(strip.attribute(QStringLiteral("src")))), QImage(dir.filePath(QStringLiteral("s.png"))));
    }
}

// Every finding of lint in the files of the broken product, with its line and severity, and no other.
void TestReport::findingAppears()
{
    const QString name = QStringLiteral("photobook-hardcover-a4");
    const QString file = json({ QStringLiteral("--data"), m_altered, QStringLiteral("show"), name, QStringLiteral("--json") }).toObject().value(QStringLiteral("file")).toString();
    QStringList expected;
    for (const QJsonValue& value : json({ QStringLiteral("--data"), m_altered, QStringLiteral("lint"), QStringLiteral("--json") }).toObject().value(QStringLiteral("findings")).toArray()) {
        const QJsonObject f = value.toObject();
        if (f.value(QStringLiteral("file")).toString() == file)
            expected.append(QStringLiteral("%1 %2 %3").arg(QString::number(f.value(QStringLiteral("line")).toInt()), f.value(QStringLiteral("severity")).toString(),
                                                           f.value(QStringLiteral("message")).toString()));
    }
    QVERIFY(!expected.isEmpty());
    const QDomDocument page = parse(indexEntries(m_dir.filePath(QStringLiteral("altered-report"))).value(name).page);
    QStringList shown;
    for (const QDomElement& row : elements(section(page, QStringLiteral("findings")), QStringLiteral("tr"))) {
        const QList<QDomElement> cells = elements(row, QStringLiteral("td"));
        if (cells.size() == 5 && cells.at(0).text() == file)
            shown.append(QStringLiteral("%1 %2 %3").arg(cells.at(1).text(), cells.at(3).text(), cells.at(4).text().section(QStringLiteral(" (did you mean"), 0, 0)));
    }
    QCOMPARE(shown, expected);
}

QTEST_GUILESS_MAIN(TestReport)
#include "tst_report.moc"
