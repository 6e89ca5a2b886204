#include "PvProductTypeDescription.h"

#include "PvProductDiagnostics.h"
#include "PvProductPropertiesLogging.h"
#include "PvSurroundingKey.h"
#include "PvValuePool.h"
#include "PvXMLChildren.h"
#include "PvXMLParser.h"
#include "PvXMLChildElements.h"

#include <QStringList>

#include <algorithm>
#include <limits>

namespace {
constexpr quint32 alignmentSpineMask = 0xF03E1;

// The longest page list pageTypes() builds. The thickest products have a few hundred pages;
// a list that many runs or year runs would make longer is a mistake in the file, and without
// the bound it would cost (runs x page count) on every request.
constexpr qsizetype maximumExpandedPages = 10000;

// Appends \a count page types, cycling through \a cycle from its start, as far as the bound
// leaves room; answers whether all of them fitted.
bool appendCycle(PvPageTypeList& pages, unsigned int count, std::initializer_list<PvPageTypeEnum> cycle)
{
    const qsizetype room = maximumExpandedPages - pages.size();
    const qsizetype fitting = std::min<qsizetype>(count, std::max<qsizetype>(room, 0));
    const auto first = cycle.begin();
    for (qsizetype i = 0; i < fitting; ++i)
        pages.append(PvPageType(*(first + i % qsizetype(cycle.size()))));
    return fitting == qsizetype(count);
}

bool appendBounded(PvPageTypeList& pages, const PvPageType& type)
{
    if (pages.size() >= maximumExpandedPages)
        return false;
    pages.append(type);
    return true;
}

PvPageAlignment horizontalOr(bool horizontal, PvPageAlignmentEnum side, PvPageAlignmentEnum stacked)
{
    return horizontal ? side : stacked;
}
}

PvProductTypeDescription::PvProductTypeDescription() = default;

PvProductTypeDescription::PvProductTypeDescription(const QDomElement& product)
{
    // The children of "product" are listed once: finding each by name would walk them all
    // again, copying a node handle at every step.
    const PvXMLChildren elements(product);
    // The order of these steps is the order product files are read in; later steps may
    // depend on earlier ones (the surroundings on the product type, for one).
    m_classification = PvProductClassification(elements);
    initIdentity(product);
    initArticleClass(product);
    initImageFX(product);
    m_coverType = PvCoverType(PvXMLParser::attribute(product, QStringLiteral("binding"))).value();
    PvProductDiagnostics::checkEnum<PvCoverType>(product, QStringLiteral("binding"), "cover type");
    initLayout(elements);
    initRedirectsAndDefaults(elements);
    m_variants = PvConfiguredArticleVariantList(elements);
    initPages(elements);
    initPageNumbering(elements);
    m_extraProductionContents = PvProductionExtraPageGroupList(elements.first(u"extra_production_pages"));
    m_foldSafetyMargin = decodeFoldSafetyMargin(product);
    initReplacement(product);
    m_editorAbilities = PvProductEditorAbilities(elements.first(u"editorAbilities"));
    initPricListCategories(elements);
    initbarcodeDefinitions(elements);
    m_preview3DDescription = PvPreview3DDescription(elements.first(u"preview3D"));
}

PvProductTypeDescription::~PvProductTypeDescription() = default;

void PvProductTypeDescription::initIdentity(const QDomElement& product)
{
    m_productType = PvProductType(PvXMLParser::attribute(product, QStringLiteral("name"), QString(), true));
    m_isVario = PvXMLParser::boolAttribute(product, QStringLiteral("isVario"), false);
    m_isTwoSided = PvXMLParser::boolAttribute(product, QStringLiteral("isTwoSided"), false);
    if (m_productType.name().isEmpty() && !product.isNull())
        PvProductDiagnostics::report(PvDiagnostic::Error, product, QStringLiteral("\"product\" has no \"name\": the product loads under the empty name"));
}

void PvProductTypeDescription::initArticleClass(const QDomElement& product)
{
    m_articleClass = PvArticleClass(PvXMLParser::attribute(product, QStringLiteral("class"), QStringLiteral("unknown"), true)).value();
    PvProductDiagnostics::checkEnum<PvArticleClass>(product, QStringLiteral("class"), "article class");
    const int classes = qPopulationCount(quint64(pvSplitBitsMask(m_articleClass)));
    if (classes != 1) {
        if (classes > 1)
            PvProductDiagnostics::report(PvDiagnostic::Error, product, QStringLiteral("attribute \"class\": a product has exactly one article class"), QStringLiteral("class"));
        m_articleClass = PvArticleClass().value();
    }
}

void PvProductTypeDescription::initImageFX(const QDomElement& product)
{
    m_imageFX = PvImageFXs(PvXMLParser::attribute(product, QStringLiteral("imageFXs"))).value();
    PvProductDiagnostics::checkEnum<PvImageFXs>(product, QStringLiteral("imageFXs"), "image effect");
    m_canHaveBorder = m_canHaveShadow = !imageFX().hasAnyOf(PvImageFXsGrayscale);
}

void PvProductTypeDescription::initLayout(const PvXMLChildren& elements)
{
    const QDomElement& product = elements.parent();
    m_horizontalPages = PvXMLParser::boolAttribute(product, QStringLiteral("horizontalPages"), true);
    m_productAlignment = PvProductAlignmentStyle(PvXMLParser::attribute(product, QStringLiteral("productAlignment"))).value();
    PvProductDiagnostics::checkEnum<PvProductAlignmentStyle>(product, QStringLiteral("productAlignment"), "product alignment style");
    m_mustPaintMiralLogoOnSpine = PvXMLParser::boolAttribute(product, QStringLiteral("hasLogoOnSpine"), false);
    m_surroundings = PvSurroundingDescriptionList(m_productType, elements);
}

void PvProductTypeDescription::initRedirectsAndDefaults(const PvXMLChildren& product)
{
    m_tiltRedirects = PvPageTiltRedirectList(product.first(u"rotationredirects"));
    m_contentDropRedirects = PvContentDropRedirectList(product.first(u"contentredirects"));
    m_defaultTemplates = PvDefaultTemplateMap(product.first(u"defaults"));
    // Deliberately 270 when the product says nothing about tilt.
    m_tiltAngle = PvXMLParser::readAngle(product.first(u"tilt"), QStringLiteral("angle"), 270);
}

void PvProductTypeDescription::initPages(const PvXMLChildren& product)
{
    m_productionNumbering = PvValuePool::shared(decodeIntList(product.first(u"productionnumbering")));
    m_pagesWithContent = PvValuePool::shared(decodeIntList(product.first(u"pageswithcontent")));
    // A missing "pages" gives the list of one empty name, on purpose: its page type 0 makes
    // pageTypes(n) warn about the product.
    const QDomElement pagesElement = product.first(u"pages");
    m_pageTypes = PvPageTypeList(PvValuePool::shared<QList<PvPageType>>(PvPageTypeList(pagesElement.text())));
    PvProductDiagnostics::checkEnum<PvPageType>(pagesElement, QString(), "page type", true);

    const auto isSpine = [](const PvPageType& type) { return type == PvPageTypeSpine; };
    const auto isJacket = [](const PvPageType& type) { return type == PvPageTypeJacket; };
    m_hasSpine = std::any_of(m_pageTypes.cbegin(), m_pageTypes.cend(), isSpine)
        || std::any_of(m_pageTypes.cbegin(), m_pageTypes.cend(), isJacket);
    PvPageTypeList pages = m_pageTypes;
    m_hasTextOnSpine = m_hasSpine && !pages.containsMatch(PvPageTypeEnum(PvPageTypeCoverInsideFront | PvPageTypeCoverInsideBack));
}

void PvProductTypeDescription::initPageNumbering(const PvXMLChildren& product)
{
    const QDomElement config = product.first(u"pageNumberConfig");
    const QDomElement margin = PvXMLChildElements::first(config, QStringLiteral("margin"));
    const PvDistanceUnit unit(PvTenthMillimetre);
    m_pageNumberVerticalIndent = PvXMLParser::readDistance(margin, QStringLiteral("verticalMargin"), 50.0, unit);
    m_pageNumberHorizontalIndent = PvXMLParser::readDistance(margin, QStringLiteral("horizontalMargin"), 50.0, unit);
    m_pageNumberFontSize = PvXMLParser::intAttribute(PvXMLChildElements::first(config, QStringLiteral("font")), QStringLiteral("fontSize"), 24);
}

void PvProductTypeDescription::initReplacement(const QDomElement& product)
{
    m_replacedByProduct = PvProductType(PvXMLParser::attribute(product, QStringLiteral("replacedBy"), QString(), true));
    m_conversionStrategy = PvXMLRewriterStrategy(PvXMLParser::attribute(product, QStringLiteral("conversionStrategy"), QString(), true)).value();
    PvProductDiagnostics::checkEnum<PvXMLRewriterStrategy>(product, QStringLiteral("conversionStrategy"), "conversion strategy");
}

void PvProductTypeDescription::initPricListCategories(const PvXMLChildren& product)
{
    const QDomElement category = PvXMLChildElements::first(product.first(u"pricelist"), QStringLiteral("category"));
    if (category.isNull())
        return;
    m_priceListCategory = category.text();
    // text() leaves room to grow; the description keeps it for good.
    m_priceListCategory.squeeze();
}

void PvProductTypeDescription::initbarcodeDefinitions(const PvXMLChildren& product)
{
    m_barcodeDefinitions = PvBarcodeDefinitionList::createFromProductsXML(product.first(u"barcodes"), PvDistanceUnit(PvTenthMillimetre));
}

QList<int> PvProductTypeDescription::decodeIntList(const QDomElement& element)
{
    return PvXMLParser::intList(element);
}

int PvProductTypeDescription::decodeFoldSafetyMargin(const QDomElement& element)
{
    return PvXMLParser::intAttribute(element, QStringLiteral("foldsafetymargin"), -1);
}

bool PvProductTypeDescription::isValid() const
{
    if (!articleClass().isValid())
        return false;
    return coverType().isValid() || articleClass().hasAnyOf(PvArticleClassPrints);
}

bool PvProductTypeDescription::isSimplex() const
{
    return coverType().isSimplex();
}

bool PvProductTypeDescription::isVarioCard() const
{
    return articleClass().hasAnyOf(PvArticleClassCard) && m_isVario;
}

bool PvProductTypeDescription::isEasyCard() const
{
    return articleClass() == PvArticleClassCard && !m_isVario;
}

PvPageTypeList PvProductTypeDescription::pageTypes(unsigned int pageCount) const
{
    PvPageTypeList pages;
    // Sized up front: a list that grows step by step copies every page at each step, and past
    // a few thousand pages each step is a fresh mapping from the system. No entry yields
    // more than the page count or a year's 25 pages.
    pages.reserve(std::min(maximumExpandedPages, m_pageTypes.size() * qsizetype(std::max(pageCount, 25u))));
    bool complete = true;
    unsigned int remaining = pageCount;
    for (const PvPageType& entry : m_pageTypes) {
        switch (entry.toUnderlying()) {
        case 0:
            qWarning("Illegaler Seitentyp in der Produktbeschreibung.");
            break;
        case PvPageTypeCover:
            // A cover counts against the runs after it; never below none, or a cover in a
            // zero-page request would turn the next run into four billion pages.
            if (remaining > 0)
                --remaining;
            complete &= appendBounded(pages, entry);
            break;
        case PvPageTypeRun:
            complete &= appendCycle(pages, remaining, { PvPageTypePage });
            break;
        case PvPageTypeRunRightLeft:
            complete &= appendCycle(pages, remaining, { PvPageTypePageRight, PvPageTypePageLeft });
            break;
        case PvPageTypeRunPairs:
            complete &= appendCycle(pages, remaining, { PvPageTypePageLeft, PvPageTypePageLeft, PvPageTypePageRight, PvPageTypePageRight });
            break;
        case PvPageTypeRunLeftRight:
            complete &= appendCycle(pages, remaining, { PvPageTypePageLeft, PvPageTypePageRight });
            break;
        case PvPageTypeRunYear:
            // A fixed year: a title page and 24 month pages, whatever page count is asked for.
            complete &= appendBounded(pages, PvPageType(PvPageTypePage));
            complete &= appendCycle(pages, 24, { PvPageTypeMonthPage });
            break;
        case PvPageTypeJacket:
            for (const PvPageTypeEnum part : { PvPageTypeJacketFlapLeft, PvPageTypeJacketBack, PvPageTypeJacketFront, PvPageTypeJacketFlapRight })
                complete &= appendBounded(pages, PvPageType(part));
            break;
        default:
            complete &= appendBounded(pages, entry);
        }
    }
    if (!complete) {
        qCWarning(lcProductProperties, "Page list of product \"%s\" for %u pages cut at %lld pages",
                  qUtf8Printable(m_productType.name()), pageCount, qlonglong(maximumExpandedPages));
    }
    if (pages.isEmpty())
        pages.append(PvPageType(PvPageTypePage));
    return pages;
}

PvProductionNumberingList PvProductTypeDescription::productionNumberingList(int pageCount) const
{
    if (pageCount <= 0)
        return {};
    PvProductionNumberingList numbers = m_productionNumbering.isEmpty() ? PvProductionNumberingList { 1 } : m_productionNumbering;
    if (numbers.size() > pageCount)
        numbers.resize(pageCount);
    numbers.reserve(pageCount);
    while (numbers.size() < pageCount) {
        // Saturates rather than overflowing on a stored number near the top of int.
        const int last = numbers.constLast();
        numbers.append(last == std::numeric_limits<int>::max() ? last : last + 1);
    }
    return numbers;
}

PvPageAlignment PvProductTypeDescription::pageAlignment(const PvPageTypeList& pages, int index) const
{
    const bool h = m_horizontalPages;
    const bool odd = index % 2 != 0;
    if (coverType().isSimplex()) {
        switch (productAlignment().toUnderlying()) {
        case PvProductAlignmentStyleNormal:
            return horizontalOr(h, PvPageAlignmentRight, PvPageAlignmentBottom);
        case PvProductAlignmentStyleCard:
        case PvProductAlignmentStyleCollegeblock:
            if (h)
                return odd ? PvPageAlignmentRight : PvPageAlignmentLeft;
            return odd ? PvPageAlignmentBottom : PvPageAlignmentTop;
        case PvProductAlignmentStyleVarioCard:
        case PvProductAlignmentStyleFotoAdventCalendar:
            return PvPageAlignmentCenter;
        default:
            break;
        }
    }
    // The index test first: scanning the list for every page would make a walk over all pages quadratic.
    if (index >= 0 && index < 4 && pages.containsPanoPageType()) {
        if (index == 0)
            return PvPageAlignmentLeft;
        if (index == 1 && pages.constFirst() == PvPageTypeOpeningPage)
            return PvPageAlignmentLeft;
        return PvPageAlignmentRight;
    }
    const PvPageType type = index >= 0 && index < pages.size() ? pages.at(index) : PvPageType();
    if (type.hasAnyOf(alignmentSpineMask) && m_hasSpine && index >= 0 && index < 3) {
        static const PvPageAlignmentEnum horizontal[] = { PvPageAlignmentLeft, PvPageAlignmentCenter, PvPageAlignmentRight };
        static const PvPageAlignmentEnum stacked[] = { PvPageAlignmentTop, PvPageAlignmentMiddle, PvPageAlignmentBottom };
        return h ? horizontal[index] : stacked[index];
    }
    if (odd)
        return horizontalOr(h, PvPageAlignmentRight, PvPageAlignmentBottom);
    return horizontalOr(h, PvPageAlignmentLeft, PvPageAlignmentTop);
}

PvSurroundingDescription PvProductTypeDescription::findSurrounding(const PvSurroundingKey& key) const
{
    return m_surroundings.findDescription(key);
}

bool PvProductTypeDescription::hasSurroundingWithBindingShade() const
{
    return m_surroundings.hasSurroundingWithBindingShade();
}

PvPageTiltRedirectList PvProductTypeDescription::tiltRedirectForSourcePage(int page) const
{
    return m_tiltRedirects.filterBySourcePage(page);
}

PvPageTiltRedirectList PvProductTypeDescription::tiltRedirectForTargetPage(int page) const
{
    return m_tiltRedirects.filterByTargetPage(page);
}

int PvProductTypeDescription::contentDropRedirect(int page) const
{
    return m_contentDropRedirects.targetPage(page);
}

QString PvProductTypeDescription::findDefaultTemplate(const PvDefaultTemplateKey& key) const
{
    return m_defaultTemplates.findTemplate(key);
}

bool PvProductTypeDescription::hasAssistant() const
{
    return m_editorAbilities.hasAssistant();
}

bool PvProductTypeDescription::isConvertable() const
{
    return m_editorAbilities.isConvertable();
}

PvPageNamingStyle PvProductTypeDescription::pageNamingStyle() const
{
    return m_editorAbilities.pageNamingStyle();
}

bool PvProductTypeDescription::showChangeDesignButton() const
{
    return m_editorAbilities.showChangeBaseDesignButton();
}

bool PvProductTypeDescription::canRotateBackgrounds() const
{
    return m_editorAbilities.canRotateBackgrounds();
}

int PvProductTypeDescription::editorStartPage() const
{
    return m_editorAbilities.editorStartPage();
}

bool PvProductTypeDescription::putFullBackgroundOnEachPage() const
{
    return m_editorAbilities.fullBackgroundOnEachPage();
}

bool PvProductTypeDescription::requiresExactArticle(const PvJigType& jigType) const
{
    return m_editorAbilities.requiresExactArticle(jigType);
}

bool PvProductTypeDescription::supportsJigType(const PvJigType& jigType) const
{
    return m_editorAbilities.isJigEnabled(jigType);
}

PvDateRangeConstraint PvProductTypeDescription::dateRangeContraint() const
{
    return m_editorAbilities.dateRangeConstraint();
}

bool PvProductTypeDescription::userPageTiltAllowed(const int& page) const
{
    return !m_editorAbilities.userPageTiltConfig().isPageRotationDisabled(page);
}

bool PvProductTypeDescription::contentAllowedOnPage(int page) const
{
    if (!m_editorAbilities.isJigEnabled(PvJigType(PvJigTypeContent)))
        return false;
    return m_pagesWithContent.isEmpty() || m_pagesWithContent.contains(page);
}

PvThematicCategorySet PvProductTypeDescription::allowedJigCategories(const PvPageType& pageType, const PvJigType& jigType) const
{
    return m_editorAbilities.allowedCategories(jigType, pageType);
}

bool PvProductTypeDescription::limitJigCategories(const PvPageType& pageType, const PvJigType& jigType) const
{
    return !allowedJigCategories(pageType, jigType).isEmpty();
}

int PvProductTypeDescription::extraProductionPageCount() const
{
    return int(m_extraProductionContents.totalPages());
}
