#include "PvBasisSettings.h"
#include "PvPreview3DDescription.h"
#include "PvProductCoordinates.h"

#include <QDomDocument>
#include <QTest>

#include <climits>

namespace {
QDomDocument product(const QString& preview)
{
    QDomDocument doc;
    doc.setContent(QStringLiteral("<product name=\"mug_white\">%1</product>").arg(preview));
    return doc;
}

const QString mug = QStringLiteral("<mesh file=\"mug.obj\"/><textureTarget name=\"Body\"/><textureTarget name=\"Handle\"/>");
}

class TestPreview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void url_data()
    {
        QTest::addColumn<QString>("preview");
        QTest::addColumn<int>("webEngine");
        QTest::addColumn<bool>("big");
        QTest::addColumn<QString>("url");

        const QString cameras = QStringLiteral("<camera><position x=\"0.5\" y=\"12\" z=\"-3\"/><lookAt y=\"1\"/></camera>"
                                               "<cameraBig><position x=\"1234567\"/></cameraBig>");
        const QString query = QStringLiteral("?mesh=mug.obj&cx=0.5&cy=12&cz=-3&ax=0&ay=1&az=0&title=Produktvorschau&targetMesh=Body");
        const QString full = QStringLiteral("<preview3D>") + mug + cameras + QStringLiteral("</preview3D>");
        const QString kvp = QStringLiteral("kvp:/threejs/productpreview/index.html");
        const QString http = QStringLiteral("http://localhost/threejs/productpreview/index.html");
        QTest::newRow("no preview") << "" << 0 << false << "";
        QTest::newRow("own scheme") << full << 4 << false << kvp + query;
        QTest::newRow("http for bit 16") << full << 16 << false << http + query;
        QTest::newRow("big camera, exponent form") << full << 8 << true
                                                   << http + QStringLiteral("?mesh=mug.obj&cx=1.23457e%2B06&cy=0&cz=0&ax=0&ay=0&az=0&title=Produktvorschau&targetMesh=Body");
        QTest::newRow("flipX only, encoded name") << "<preview3D><mesh file=\"my mug&amp;co.obj\" flipX=\"true\"/><textureTarget name=\"A\"/></preview3D>" << 0 << false
                                                  << kvp + QStringLiteral("?mesh=my%20mug%26co.obj&flipX=true&cx=0&cy=0&cz=0&ax=0&ay=0&az=0&title=Produktvorschau&targetMesh=A");
    }

    void url()
    {
        QFETCH(QString, preview);
        QFETCH(int, webEngine);
        QFETCH(bool, big);
        QFETCH(QString, url);

        PvBasisSettings::instance().setWebEngineType(webEngine);
        const PvPreview3DDescription description(product(preview).documentElement());
        QCOMPARE(description.url(big).toString(QUrl::FullyEncoded), url);
        QCOMPARE(description.pagesPer3DModel(), url.isEmpty() ? 0 : 1);
    }

    void meshWithoutTarget()
    {
        const QDomDocument doc = product(QStringLiteral("<preview3D><mesh file=\"mug.obj\" pagesPer3DModel=\"2\"/><windowSize width=\"300\" height=\"200\"/></preview3D>"));
        QTest::ignoreMessage(QtWarningMsg, "3D preview of product \"mug_white\" has a mesh but no textureTarget; the product gets no 3D preview.");
        PvPreview3DDescription description(doc.documentElement());
        QVERIFY(description.mesh().isEmpty());
        QCOMPARE(description.pagesPer3DModel(), 0);
        QVERIFY(description.url(false).isEmpty());
        QCOMPARE(description.windowSize(), QSize(300, 200));

        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
        description.init(product(QStringLiteral("<preview3D><mesh file=\"m\" pagesPer3DModel=\"2\"/><textureTarget/></preview3D>")).documentElement());
        QCOMPARE(description.pagesPer3DModel(), 2);
        QCOMPARE(description.windowSize(), QSize(-1, -1));
    }

    void coordinates_data()
    {
        QTest::addColumn<QRectF>("rect");
        QTest::addColumn<int>("pos");
        QTest::addColumn<int>("size");
        QTest::addColumn<double>("sizeMM");

        QTest::newRow("x 100 width 50") << QRectF(100, 0, 50, 0) << 1250 << 500 << 5.0;
        QTest::newRow("1.5 rounds to 2") << QRectF(0, 0, 0.15, 0) << 1 << 2 << 0.02;
        QTest::newRow("2.5 rounds to 3, made even") << QRectF(0, 0, 0.25, 0) << 1 << 4 << 0.04;
        QTest::newRow("4.5 rounds to 5, made even") << QRectF(0, 0, 0.45, 0) << 2 << 6 << 0.06;
        QTest::newRow("centre 2.5 rounds up") << QRectF(0.25, 0, 0, 0) << 3 << 2 << 0.02;
        QTest::newRow("centre -0.5 rounds away from zero") << QRectF(-0.05, 0, 0, 0) << -1 << 2 << 0.02;
        QTest::newRow("negative width") << QRectF(0, 0, -0.25, 0) << -1 << 2 << 0.02;
        QTest::newRow("10.05 rounds to 10") << QRectF(0, 0, 1.005, 0) << 5 << 10 << 0.1;
        QTest::newRow("huge is clamped") << QRectF(1e300, 0, 1e300, 0) << INT_MAX << INT_MAX - 1 << (INT_MAX - 1) / 100.0;
        QTest::newRow("not a number") << QRectF(qQNaN(), 0, qQNaN(), 0) << 0 << 2 << 0.02;
    }

    void coordinates()
    {
        QFETCH(QRectF, rect);
        QFETCH(int, pos);
        QFETCH(int, size);
        QFETCH(double, sizeMM);

        const QRectF transposed(rect.y(), rect.x(), rect.height(), rect.width());
        QCOMPARE(PvProductCoordinates::posX(rect), pos);
        QCOMPARE(PvProductCoordinates::posY(transposed), pos);
        QCOMPARE(PvProductCoordinates::posWidth(rect), size);
        QCOMPARE(PvProductCoordinates::posHeight(transposed), size);
        QCOMPARE(PvProductCoordinates::posXMM(rect), pos / 100.0);
        QCOMPARE(PvProductCoordinates::posWidthMM(rect), sizeMM);
        QCOMPARE(PvProductCoordinates::posHeightMM(transposed), sizeMM);
    }
};

QTEST_GUILESS_MAIN(TestPreview)
#include "tst_preview.moc"
