#include "PvBlockPool.h"
#include "PvTestXml.h"
#include "PvValuePool.h"
#include "PvXMLAttribute.h"
#include "PvXMLChildElements.h"
#include "PvXMLChildren.h"
#include "PvXMLParser.h"

#include <QDomDocument>
#include <QTest>

#include <memory>
#include <vector>

class TestLoading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void attributeValue();
    void childElements_data();
    void childElements();
    void childList();
    void valuePool();
    void blockPool();
};

void TestLoading::attributeValue()
{
    const QDomElement e = element(QStringLiteral("<e empty='' text='a b'/>"));
    QCOMPARE(PvXMLAttribute::value(e, QStringLiteral("empty")), std::optional<QString>(QString()));
    QCOMPARE(PvXMLAttribute::value(e, QStringLiteral("text")), std::optional<QString>(QStringLiteral("a b")));
    QCOMPARE(PvXMLAttribute::value(e, QStringLiteral("missing")), std::nullopt);
    QCOMPARE(PvXMLAttribute::value(QDomElement(), QStringLiteral("text")), std::nullopt);
    // A present empty attribute is the empty text, not the default.
    QCOMPARE(PvXMLParser::attribute(e, QStringLiteral("empty"), QStringLiteral("dflt")), QString());
}

void TestLoading::childElements_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("tag");
    const QString mixed = QStringLiteral("<e>text<a n='1'/><!-- c --><b/><?pi x?><a n='2'><a n='inner'/></a>more<![CDATA[<a/>]]><c/><a n='3'/></e>");
    QTest::newRow("every child") << mixed << QString();
    QTest::newRow("one tag among others") << mixed << QStringLiteral("a");
    QTest::newRow("single") << mixed << QStringLiteral("b");
    QTest::newRow("absent tag") << mixed << QStringLiteral("d");
    QTest::newRow("no children") << QStringLiteral("<e/>") << QString();
    QTest::newRow("only text") << QStringLiteral("<e>just text</e>") << QStringLiteral("a");
    QTest::newRow("prefixed names, no namespace processing") << QStringLiteral("<e><p:a/><a/><p:a/></e>") << QStringLiteral("p:a");
}

void TestLoading::childElements()
{
    QFETCH(QString, xml);
    QFETCH(QString, tag);
    const QDomElement e = element(xml);
    QList<QDomElement> expected;
    for (QDomElement child = e.firstChildElement(tag); !child.isNull(); child = child.nextSiblingElement(tag))
        expected.append(child);
    QList<QDomElement> walked;
    for (const QDomElement child : PvXMLChildElements(e, tag))
        walked.append(child);
    QCOMPARE(walked, expected);
    QCOMPARE(PvXMLChildElements::first(e, tag), e.firstChildElement(tag));
}

void TestLoading::childList()
{
    const QDomElement e = element(QStringLiteral("<e>text<a n='1'/><!-- c --><b/><a n='2'/>more<c/><a n='3'/></e>"));
    const PvXMLChildren children(e);
    QCOMPARE(children.parent(), e);
    for (const QString& tag : { QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"), QStringLiteral("d") })
        QCOMPARE(children.first(tag), e.firstChildElement(tag));
    QStringList numbers;
    for (const QDomElement& a : children.all(u"a"))
        numbers.append(a.attribute(QStringLiteral("n")));
    QCOMPARE(numbers, QStringList({ QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3") }));
    QVERIFY(PvXMLChildren(QDomElement()).all(u"a").isEmpty());
    QVERIFY(PvXMLChildElements::first(QDomElement(), QStringLiteral("a")).isNull());

    // An element made with a namespace has a prefix that its tag name leaves out.
    QDomDocument document;
    QDomElement root = document.createElement(QStringLiteral("e"));
    document.appendChild(root);
    root.appendChild(document.createElementNS(QStringLiteral("urn:x"), QStringLiteral("p:a")));
    root.appendChild(document.createElement(QStringLiteral("a")));
    for (const QString& tag : { QStringLiteral("a"), QStringLiteral("p:a") })
        QCOMPARE(PvXMLChildElements::first(root, tag), root.firstChildElement(tag));
}

void TestLoading::valuePool()
{
    // Two equal strings that do not share their characters, as two files' attributes would be.
    const QString first = QStringLiteral("surroundings/") + QStringLiteral("shade.png");
    const QString second = QStringLiteral("surroundings/shade") + QStringLiteral(".png");
    QVERIFY(first.constData() != second.constData());
    QCOMPARE(PvValuePool::shared(second).constData(), second.constData());

    QString grown = QStringLiteral("Urlaub");
    grown.reserve(100);
    {
        PvValuePool pool;
        const QString a = PvValuePool::shared(first);
        const QString b = PvValuePool::shared(second);
        QCOMPARE(b, second);
        QCOMPARE(b.constData(), a.constData());
        {
            // A pool made inside another one leaves the sharing to the outer pool.
            PvValuePool inner;
            QCOMPARE(PvValuePool::shared(QString(second)).constData(), a.constData());
            QCOMPARE(inner.size(), 0);
        }
        QCOMPARE(PvValuePool::shared(second).constData(), a.constData());

        // Kept strings hold no spare room.
        const QString kept = PvValuePool::shared(grown);
        QCOMPARE(kept, grown);
        QCOMPARE(kept.capacity(), kept.size());

        const QStringList ids = { QStringLiteral("matt"), first };
        const QStringList same = PvValuePool::shared(QStringList({ QStringLiteral("matt"), second }));
        QCOMPARE(PvValuePool::shared(ids).constData(), same.constData());
        QCOMPARE(same.at(1).constData(), a.constData());

        // Any value with a hash, kept without spare room; a short text stays as it is.
        QList<int> pages;
        pages.reserve(64);
        pages << 3 << 4 << 5;
        const QList<int> pooledPages = PvValuePool::shared(pages);
        QCOMPARE(pooledPages, pages);
        QCOMPARE(pooledPages.capacity(), 3);
        QCOMPARE(PvValuePool::shared(QList<int>({ 3, 4, 5 })).constData(), pooledPages.constData());
        const QString shortText = QStringLiteral("2") + QStringLiteral("01");
        QCOMPARE(PvValuePool::shared(shortText).constData(), shortText.constData());
        QCOMPARE(pool.size(), 5);

        // Paths used in turn by the files of a catalogue each keep one copy, whatever their
        // hashes: a working set of a hundred texts, met again, is shared all through.
        QStringList paths;
        for (int i = 0; i < 100; ++i)
            paths.append(PvValuePool::shared(QStringLiteral("surroundings/frame-%1.png").arg(i)));
        for (int i = 0; i < 100; ++i)
            QCOMPARE(PvValuePool::shared(QStringLiteral("surroundings/frame-%1.png").arg(i)).constData(), paths.at(i).constData());
    }
    QCOMPARE(PvValuePool::shared(second).constData(), second.constData());
}

void TestLoading::blockPool()
{
    struct Record : PvBlockPoolAllocated
    {
        explicit Record(const QString& value) : text(value) { }
        QString text;
        char payload[40] = {};
    };
    const std::size_t idle = PvBlockPool::idleBytes();
    auto* first = new Record(QStringLiteral("first"));
    delete first;
    if (PvBlockPool::idleBytes() == idle)
        QSKIP("every block comes from the general heap under AddressSanitizer");
    QVERIFY(PvBlockPool::idleBytes() >= idle + sizeof(Record));
    // The freed block is the next one of its size; the records are whole objects.
    auto* second = new Record(QStringLiteral("second"));
    QCOMPARE(static_cast<void*>(second), static_cast<void*>(first));
    QCOMPARE(second->text, QStringLiteral("second"));
    std::vector<std::unique_ptr<Record>> many;
    for (int i = 0; i < 1000; ++i)
        many.push_back(std::make_unique<Record>(QString::number(i)));
    QCOMPARE(many.at(999)->text, QStringLiteral("999"));
    delete second;
    // Records larger than the pooled sizes come from the general heap and change nothing here.
    struct Large : PvBlockPoolAllocated
    {
        char payload[4096];
    };
    const std::size_t before = PvBlockPool::idleBytes();
    delete new Large;
    QCOMPARE(PvBlockPool::idleBytes(), before);
}

QTEST_GUILESS_MAIN(TestLoading)
#include "tst_loading.moc"
