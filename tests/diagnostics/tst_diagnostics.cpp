#include "PvDiagnosticCollector.h"
#include "PvDiagnostics.h"
#include "PvXMLLoader.h"
#include "PvXMLParser.h"

#include <QDomDocument>
#include <QTemporaryDir>
#include <QTest>

class TestDiagnostics : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void closest_data();
    void closest();
    void xmlError_data();
    void xmlError();
    void collectorsNest();
    void typedReadersReportOnlyWhenListened();
    void loaderSaysWhy();
    void textKeepsPercentSigns();
};

void TestDiagnostics::closest_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("one letter missing") << "spinee" << "spine";
    QTest::newRow("neighbours swapped") << "pgae" << "page";
    QTest::newRow("case only") << "Pages" << "pages";
    QTest::newRow("exact is no typo") << "page" << "";
    QTest::newRow("too far for a short name") << "pxxe" << "";
    QTest::newRow("long name, far") << "photobook-hardcover-a4" << "";
    QTest::newRow("long name, three edits") << "editrAbilites" << "editorAbilities";
    QTest::newRow("blank") << "  " << "";
}

void TestDiagnostics::closest()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    const QStringList known { QStringLiteral("spine"), QStringLiteral("page"), QStringLiteral("pages"), QStringLiteral("editorAbilities"),
                              QStringLiteral("photobook-hardcover-xl-jacket") };
    QCOMPARE(PvDiagnostics::closest(text, known), expected);
}

void TestDiagnostics::xmlError_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("message");
    QTest::newRow("empty") << QByteArray() << 0 << 0 << "the file is empty";
    QTest::newRow("blanks only") << QByteArray("\n  \n") << 0 << 0 << "the file is empty";
    QTest::newRow("mismatched end tag") << QByteArray("<a>\n <b>\n  <layout>\n </jigs>\n</b></a>") << 4 << 2
                                        << "element \"layout\" opened on line 3 is closed by \"jigs\" on line 4";
    QTest::newRow("never closed") << QByteArray("<a>\n<b>\n") << 3 << 1 << "element \"b\" opened on line 2 is never closed";
}

void TestDiagnostics::xmlError()
{
    QFETCH(QByteArray, data);
    QFETCH(int, line);
    QFETCH(int, column);
    QFETCH(QString, message);
    const PvDiagnostic diagnostic = PvDiagnostics::xmlError(data);
    QCOMPARE(diagnostic.message, message);
    QCOMPARE(diagnostic.line, line);
    QCOMPARE(diagnostic.column, column);
    QCOMPARE(diagnostic.severity, PvDiagnostic::Error);
}

void TestDiagnostics::collectorsNest()
{
    QDomDocument document;
    QVERIFY(document.setContent(QStringLiteral("<a>\n  <b/></a>")));
    const QDomElement b = document.documentElement().firstChildElement();
    PvDiagnosticCollector outer;
    {
        PvDiagnosticCollector inner;
        const PvDiagnosticFileScope scope(QStringLiteral("x.xml"));
        PvDiagnostics::report(pvXmlLog(), PvDiagnostic::Warning, b, QStringLiteral("inner"));
        QCOMPARE(inner.diagnostics().size(), 1);
        QCOMPARE(inner.diagnostics().first().file, QStringLiteral("x.xml"));
        QCOMPARE(inner.diagnostics().first().line, 2);
        QCOMPARE(inner.diagnostics().first().place, PvDiagnostic::StartTagEnd);
        QCOMPARE(inner.diagnostics().first().category, QStringLiteral("pv.xml"));
    }
    QCOMPARE(PvDiagnosticCollector::current(), &outer);
    QVERIFY(outer.diagnostics().isEmpty());
    PvDiagnostics::reportFile(pvXmlLog(), PvDiagnostic::Error, QStringLiteral("whole"));
    QCOMPARE(outer.count(PvDiagnostic::Error), 1);
    // The whole file is placed at its start, 1-based.
    QCOMPARE(outer.diagnostics().first().line, 1);
    QCOMPARE(outer.diagnostics().first().column, 1);
    QCOMPARE(outer.takeDiagnostics().size(), 1);
    QVERIFY(outer.diagnostics().isEmpty());
}

void TestDiagnostics::typedReadersReportOnlyWhenListened()
{
    QDomDocument document;
    QVERIFY(document.setContent(QStringLiteral("<a n=\"x\" b=\"ja\" d=\"1,5\"/>")));
    const QDomElement a = document.documentElement();
    QVERIFY(!PvDiagnosticCollector::current());
    QVERIFY(!PvDiagnostics::isListening(pvXmlLog()));
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    QCOMPARE(PvXMLParser::intAttribute(a, QStringLiteral("n"), 7), 7);

    PvDiagnosticCollector collector;
    QCOMPARE(PvXMLParser::intAttribute(a, QStringLiteral("n"), 7), 7);
    QCOMPARE(PvXMLParser::boolAttribute(a, QStringLiteral("b"), true), true);
    QCOMPARE(PvXMLParser::doubleAttribute(a, QStringLiteral("d"), 2.0), 2.0);
    QCOMPARE(PvXMLParser::intAttribute(a, QStringLiteral("missing"), 3), 3);
    const QList<PvDiagnostic> reported = collector.diagnostics();
    QCOMPARE(reported.size(), 3);
    QCOMPARE(reported.at(0).message, QStringLiteral("attribute \"n\": \"x\" is not a whole number; the default is used"));
    QCOMPARE(reported.at(0).attribute, QStringLiteral("n"));
    QCOMPARE(reported.at(1).message, QStringLiteral("attribute \"b\": \"ja\" is not true or false; the default is used"));
    QCOMPARE(reported.at(2).message, QStringLiteral("attribute \"d\": \"1,5\" is not a number; the default is used"));
}

void TestDiagnostics::loaderSaysWhy()
{
    QTemporaryDir dir;
    QFile file(dir.filePath(QStringLiteral("broken.xml")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<products>\n  <product name=\"x\">\n    <pages>page</page>\n  </product>\n</products>\n");
    file.close();
    PvDiagnosticCollector collector;
    QVERIFY(PvXMLLoader::loadDocumentElement(file.fileName()).isNull());
    QCOMPARE(collector.diagnostics().size(), 1);
    const PvDiagnostic diagnostic = collector.diagnostics().first();
    QCOMPARE(diagnostic.message, QStringLiteral("element \"pages\" opened on line 3 is closed by \"page\" on line 3; the file is skipped"));
    QCOMPARE(diagnostic.line, 3);
    QCOMPARE(diagnostic.column, 16);
}

void TestDiagnostics::textKeepsPercentSigns()
{
    PvDiagnostic diagnostic;
    diagnostic.file = QStringLiteral("products/%2-%1.xml");
    diagnostic.line = 3;
    diagnostic.column = 4;
    diagnostic.severity = PvDiagnostic::Error;
    diagnostic.message = QStringLiteral("50%1 off");
    QCOMPARE(diagnostic.toString(), QStringLiteral("products/%2-%1.xml:3:4: error: 50%1 off"));
}

QTEST_GUILESS_MAIN(TestDiagnostics)
#include "tst_diagnostics.moc"
