// A product file into a description, then every const query with bounded arguments: the page
// counts of PvFuzz::pageCounts(), every index of each page list they give, each page and jig type.

#include "PvFuzzSupport.h"

#include "PvDefaultTemplateKey.h"
#include "PvProductCoordinates.h"
#include "PvProductTypeDescription.h"
#include "PvSurroundingKey.h"

#include <QDebug>
#include <QUrl>

namespace {
void queryIdentity(const PvProductTypeDescription& d)
{
    QString text;
    QDebug(&text) << d.productType().name() << d.articleClass() << d.coverType() << d.imageFX() << d.productAlignment()
                  << d.conversionStrategy() << d.pageNamingStyle() << d.replacedByProduct().name();
    (void)d.isValid(), (void)d.isSimplex(), (void)d.isVarioCard(), (void)d.isEasyCard();
    (void)d.hasAssistant(), (void)d.isConvertable(), (void)d.showChangeDesignButton(), (void)d.canRotateBackgrounds();
    (void)d.editorStartPage(), (void)d.putFullBackgroundOnEachPage(), (void)d.productAlignment().hasOnlySinglePages();
    (void)d.variants().defaultVariant(), (void)d.priceListCategory(), (void)d.tiltAngle(), (void)d.extraProductionPageCount();
    (void)d.hasSurroundingWithBindingShade(), (void)d.pageNumberHorizontalIndent().to(PvDistanceUnit(PvDistanceUnitEnum(2)));
    const PvDateRangeConstraint dates = d.dateRangeContraint();
    (void)dates.allowedDateRange(QDate(2024, 2, 29));
    (void)dates.maximumAllowedDate(QDate(2024, 2, 29)), (void)dates.minimumAllowedDateSince(QDate(2024, 2, 29));
    for (int unit = 1; unit <= 5; ++unit) {
        const PvDistanceUnit distanceUnit { PvDistanceUnitEnum(unit) };
        (void)d.classification().visibleName(distanceUnit), (void)d.classification().sizeNameWithUnit(distanceUnit);
        (void)d.classification().dimensions(distanceUnit);
    }
    (void)d.classification().areaSize(), (void)d.classification().sizeDiagonal(), (void)d.classification().group().visibleDescription();
}

void queryPreview(const PvProductTypeDescription& d)
{
    const PvPreview3DDescription preview = d.preview3DDescription();
    (void)preview.url(false), (void)preview.url(true), (void)preview.pagesPer3DModel(), (void)preview.windowSize();
    QList<QRectF> rects { preview.cupRingRect() };
    for (const PvTextureTarget& target : preview.textureTargets())
        rects.append(target.rect());
    for (const QRectF& rect : rects) {
        (void)PvProductCoordinates::posX(rect), (void)PvProductCoordinates::posY(rect);
        (void)PvProductCoordinates::posWidth(rect), (void)PvProductCoordinates::posHeight(rect);
        (void)PvProductCoordinates::posXMM(rect), (void)PvProductCoordinates::posHeightMM(rect);
    }
}

void querySurroundings(const PvProductTypeDescription& d)
{
    for (const PvSurroundingDescription& surrounding : d.surroundings()) {
        (void)surrounding.spiralConfig().spiralSize(Qt::Horizontal), (void)surrounding.spiralConfig().spiralSize(Qt::Vertical);
        (void)surrounding.calendarHoleConfig().hasHole(), (void)surrounding.spineFoldWithSafetyMargins();
        (void)surrounding.hashValue(), (void)surrounding.editableArea(), (void)surrounding.tileSize();
    }
}

// One page of a concrete list: everything the editor asks while it shows that page.
void queryPage(const PvProductTypeDescription& d, const PvPageTypeList& pages, int index)
{
    const PvPageType type = pages.at(index);
    const PvPageAlignment alignment = d.pageAlignment(pages, index);
    const PvPageContext context(type, alignment);
    (void)d.findSurrounding(PvSurroundingKey(context, index, PvArticleVariants()));
    for (int kind = PvDefaultTemplateTypeLayout; kind <= PvDefaultTemplateTypeDesign; ++kind)
        (void)d.findDefaultTemplate(PvDefaultTemplateKey(context, PvDefaultTemplateType(kind), index, int(pages.size())));
}

void queryPageNumbers(const PvProductTypeDescription& d, int last)
{
    for (int page = -1; page <= last; ++page) {
        (void)d.contentAllowedOnPage(page), (void)d.contentDropRedirect(page), (void)d.userPageTiltAllowed(page);
        (void)d.tiltRedirectForSourcePage(page), (void)d.tiltRedirectForTargetPage(page);
    }
}

void queryPages(const PvProductTypeDescription& d)
{
    (void)d.pageTypes().containsPanoPageType();
    int longest = 0;
    for (const int count : PvFuzz::pageCounts()) {
        const PvPageTypeList pages = d.pageTypes(unsigned(qMax(count, 0)));
        for (int index = -1; index <= int(pages.size()); ++index) {
            if (index < 0 || index >= pages.size())
                (void)d.pageAlignment(pages, index);
            else
                queryPage(d, pages, index);
        }
        (void)d.productionNumberingList(count);
        longest = qMax(longest, int(pages.size()));
    }
    queryPageNumbers(d, qMin(longest, 1000));
}

void queryJigs(const PvProductTypeDescription& d)
{
    QList<PvPageType> pageTypes { PvPageType() };
    for (const PvPageType& type : d.pageTypes())
        if (!pageTypes.contains(type))
            pageTypes.append(type);
    for (const PvJigType& jig : PvFuzz::jigTypes()) {
        (void)d.requiresExactArticle(jig), (void)d.supportsJigType(jig);
        for (const PvPageType& pageType : pageTypes) {
            (void)d.limitJigCategories(pageType, jig);
            QString text;
            QDebug(&text) << d.allowedJigCategories(pageType, jig);
        }
    }
}
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    PvFuzz::initialize();
    const qint64 before = PvFuzz::heapInUse();
    const QDomElement root = PvFuzz::documentElement(PvFuzz::bytes(data, size));
    const PvProductTypeDescription description(root.firstChildElement(QStringLiteral("product")));
    // What a product file of up to 64 KB may cost once loaded, its document included.
    PvFuzz::checkHeldMemory(before, 16, "the loaded product file");
    queryIdentity(description);
    queryPreview(description);
    querySurroundings(description);
    queryPages(description);
    queryJigs(description);
    return 0;
}
