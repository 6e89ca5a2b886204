#include "PvArticleClass.h"
#include "PvFotoBookShape.h"
#include "PvImageFXs.h"
#include "PvJigType.h"
#include "PvPageAlignment.h"
#include "PvPageNamingStyle.h"
#include "PvPageType.h"
#include "PvProductAlignmentStyle.h"
#include "PvSurroundingType.h"
#include "PvXMLRewriterStrategy.h"

#include <QSemaphore>
#include <QTest>
#include <QThread>

#include <atomic>
#include <stdexcept>
#include <thread>

namespace {
// Two enumerations private to this test, so that each test sees its table being built.
enum RaceEnum : quint32 { RaceOne = 1, RaceTwo = 2 };
enum FlakyEnum : quint32 { FlakyOne = 1 };

class RaceWrapper : public PvEnumWrapper<RaceEnum>
{
public:
    static inline std::atomic<int> fills { 0 };
    explicit RaceWrapper(const QString& text) { setFromText(text); }

protected:
    void fillTable(Table* table) const override
    {
        ++fills;
        QThread::msleep(50); // widen the window in which a second filler could slip in
        table->insertAll({ { "one", RaceOne }, { "two", RaceTwo } });
    }
};

class FlakyWrapper : public PvEnumWrapper<FlakyEnum>
{
public:
    static inline int attempts = 0;
    using PvEnumWrapper::PvEnumWrapper;

protected:
    void fillTable(Table* table) const override
    {
        if (++attempts == 1)
            throw std::runtime_error("first fill fails");
        table->insert(QStringLiteral("one"), FlakyOne);
    }
};

// Decodes text through the table of the wrapper W, as the wrapper's text constructor does.
template <typename W>
quint64 decoded(const QString& text)
{
    return quint64(W(text).toUnderlying());
}
}

class TestEnums : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void decodeCSV_data();
    void decodeCSV();
    void encode_data();
    void encode();
    void singleDecode();
    void splitting();
    void signedComparison();
    void flagOperators();
    void tableBuiltOnceAcrossThreads();
    void failedFillLeavesTableUnset();
};

void TestEnums::decodeCSV_data()
{
    QTest::addColumn<quint64>("value");
    QTest::addColumn<quint64>("expected");
    QTest::newRow("gray with blanks") << decoded<PvImageFXs>(QStringLiteral(" Gray ")) << quint64(1);
    QTest::newRow("effects list") << decoded<PvImageFXs>(QStringLiteral("grayscale,PRESERVE_ALPHA_CHANNEL")) << quint64(5);
    QTest::newRow("empty effects text") << decoded<PvImageFXs>(QString()) << quint64(0);
    QTest::newRow("naming with blanks around comma") << decoded<PvPageNamingStyle>(QStringLiteral("Book , CALENDAR")) << quint64(3);
    QTest::newRow("naming with empty piece") << decoded<PvPageNamingStyle>(QStringLiteral("book,,calendar")) << quint64(3);
    QTest::newRow("naming none is a bit") << decoded<PvPageNamingStyle>(QStringLiteral("none")) << quint64(0x200000);
    QTest::newRow("naming unknown") << decoded<PvPageNamingStyle>(QStringLiteral("leporello")) << quint64(0);
    QTest::newRow("jig synonym") << decoded<PvJigType>(QStringLiteral("Hintergrund")) << quint64(1);
    QTest::newRow("jig synonym in other case") << decoded<PvJigType>(QStringLiteral("LAYOUTS")) << quint64(8);
    QTest::newRow("jig masks") << decoded<PvJigType>(QStringLiteral("masks")) << quint64(16);
    QTest::newRow("rewriter combination") << decoded<PvXMLRewriterStrategy>(QStringLiteral("RewriteOneSidedEasyToTwoSidedVario")) << quint64(5);
    QTest::newRow("rewriter list") << decoded<PvXMLRewriterStrategy>(QStringLiteral("RewriteOneToTwoPages,RewriteSplitInTwoProjects")) << quint64(10);
    QTest::newRow("shape in capitals") << decoded<PvFotoBookShape>(QStringLiteral("A4")) << quint64(16);
    QTest::newRow("shape list") << decoded<PvFotoBookShape>(QStringLiteral("a4,xl")) << quint64(144);
    QTest::newRow("surrounding lower case") << decoded<PvSurroundingType>(QStringLiteral("frame_combined")) << quint64(8192);
    QTest::newRow("alignment style") << decoded<PvProductAlignmentStyle>(QStringLiteral("vario_card")) << quint64(2);
    QTest::newRow("page list") << decoded<PvPageType>(QStringLiteral("cover_back,spine,cover_front")) << quint64(0xA1);
    QTest::newRow("page all") << decoded<PvPageType>(QStringLiteral("all")) << quint64(0xF03F9);
    QTest::newRow("article class of bit 44") << decoded<PvArticleClass>(QStringLiteral("prints")) << (quint64(1) << 44);
    QTest::newRow("empty surrounding") << decoded<PvSurroundingType>(QString()) << quint64(0);
}

void TestEnums::decodeCSV()
{
    QFETCH(quint64, value);
    QFETCH(quint64, expected);
    QCOMPARE(value, expected);
}

void TestEnums::encode_data()
{
    QTest::addColumn<QString>("encoded");
    QTest::addColumn<QString>("expected");
    QTest::newRow("first text of a value") << PvImageFXs(PvImageFXsGrayscale).encodeCSV() << "grayscale";
    QTest::newRow("jig first synonym") << PvJigType(QStringLiteral("backgrounds")).encodeCSV() << "background";
    QTest::newRow("several bits") << PvPageType(PvPageTypePageLeft).encodeCSV() << "left, page";
    QTest::newRow("zero gives unknown text") << PvPageNamingStyle().encodeCSV() << "UNKOWN";
    QTest::newRow("bit without text") << PvPageNamingStyle(PvPageNamingStyleEnum(0x80)).encodeCSV() << "UNKOWN";
    QTest::newRow("zero elsewhere is empty") << PvSurroundingType().encodeCSV() << "";
    QTest::newRow("sign bit encodes as nothing") << PvPageNamingStyle(PvPageNamingStyleSlipcase).encodeCSV() << "UNKOWN";
    QTest::newRow("bit 44") << PvArticleClass(PvArticleClassPrints).encodeCSV() << "prints";
    QTest::newRow("shape unknown text") << PvFotoBookShape(QStringLiteral("unkonwn")).encodeCSV() << "";
}

void TestEnums::encode()
{
    QFETCH(QString, encoded);
    QFETCH(QString, expected);
    QCOMPARE(encoded, expected);
}

void TestEnums::singleDecode()
{
    const auto* table = PvJigType().enumToStringTable();
    QCOMPARE(table->decode(QStringLiteral(" Rahmen ")), std::optional<PvJigTypeEnum>(PvJigTypeFrame));
    QCOMPARE(table->decode(QStringLiteral("rahmen,clipart")), std::nullopt);
    QCOMPARE(table->decode(QString()), std::nullopt);
    QCOMPARE(PvImageFXs().enumToStringTable()->decode(QString()), std::optional<PvImageFXsEnum>(PvImageFXsNone));
}

void TestEnums::splitting()
{
    QCOMPARE(PvPageAlignment(QStringLiteral("bottom,left,center")).splitToBitsSorted(),
             QList<PvPageAlignmentEnum>({ PvPageAlignmentLeft, PvPageAlignmentCenter, PvPageAlignmentBottom }));
    QCOMPARE(PvPageType(PvPageTypePanoramaPage).splitToBits(), QSet<PvPageTypeEnum>({ PvPageTypePage, PvPageTypePanorama }));
    QVERIFY(PvPageType().splitToBits().isEmpty());
    // The top bit makes the value negative: it and every other bit are lost, by design.
    QVERIFY(PvPageNamingStyle(PvPageNamingStyleEnum(0x80000001)).splitToBits().isEmpty());
    QVERIFY(PvArticleClass(PvArticleClassEnum(quint64(1) << 63 | 1)).splitToBits().isEmpty());
    QCOMPARE(PvArticleClass(PvArticleClassEnum(quint64(1) << 44 | 4)).splitToBitsSorted(),
             QList<PvArticleClassEnum>({ PvArticleClassPoster, PvArticleClassPrints }));
}

void TestEnums::signedComparison()
{
    const PvPageNamingStyle slipcase(PvPageNamingStyleSlipcase);
    const PvPageNamingStyle book(PvPageNamingStyleBook);
    QVERIFY(slipcase < book);
    QVERIFY(book > slipcase);
    QVERIFY(slipcase <= slipcase);
    QVERIFY(PvArticleClass(PvArticleClassEnum(quint64(1) << 63)) < PvArticleClass(PvArticleClassPhotobook));
    QVERIFY(PvJigType(PvJigTypeClipart) < PvJigType(PvJigTypeContent));
}

void TestEnums::flagOperators()
{
    PvXMLRewriterStrategy strategy(QStringLiteral("RewriteOneSidedVario10ToTwoSidedVario5"));
    QCOMPARE(strategy.reducedTo(PvRewriteOneToTwoSides), PvRewriteOneToTwoSides);
    QCOMPARE(strategy.reducedTo(PvRewriteSplitInTwoProjects), PvRewriteSplitInTwoProjects);
    QCOMPARE(strategy.reducedTo(PvRewriteEasyToVario), PvXMLRewriterStrategyNone);
    strategy |= PvRewriteEasyToVario;
    QCOMPARE(strategy.toUnderlying(), 13u);
    strategy &= PvXMLRewriterStrategy(PvRewriteEasyToVario);
    QVERIFY(strategy == PvRewriteEasyToVario);
    QVERIFY(strategy != PvXMLRewriterStrategy());
    QVERIFY(!PvXMLRewriterStrategy(QStringLiteral("bogus")).isValid());
    QCOMPARE(PvJigType(PvJigTypeClipart) | PvJigType(PvJigTypeLayout), PvJigTypeEnum(10));
}

void TestEnums::tableBuiltOnceAcrossThreads()
{
    constexpr int threadCount = 8;
    QSemaphore ready;
    QSemaphore go;
    std::array<quint32, threadCount> values {};
    std::array<const void*, threadCount> tables {};
    std::vector<std::thread> threads; // joined, so that ThreadSanitizer sees the results handed over
    for (int i = 0; i < threadCount; ++i) {
        threads.emplace_back([&, i] {
            ready.release();
            go.acquire();
            const RaceWrapper wrapper(QStringLiteral("one,Two"));
            values[i] = wrapper.toUnderlying();
            tables[i] = wrapper.enumToStringTable();
        });
    }
    ready.acquire(threadCount);
    go.release(threadCount);
    for (auto& thread : threads)
        thread.join();
    QCOMPARE(RaceWrapper::fills.load(), 1);
    for (int i = 0; i < threadCount; ++i) {
        QCOMPARE(values[i], 3u);
        QCOMPARE(tables[i], tables[0]);
    }
}

void TestEnums::failedFillLeavesTableUnset()
{
    const FlakyWrapper wrapper(FlakyOne);
    QVERIFY_THROWS_EXCEPTION(std::runtime_error, wrapper.enumToStringTable());
    QCOMPARE(wrapper.encodeCSV(), QStringLiteral("one"));
    QCOMPARE(FlakyWrapper::attempts, 2);
}

QTEST_GUILESS_MAIN(TestEnums)
#include "tst_enums.moc"
