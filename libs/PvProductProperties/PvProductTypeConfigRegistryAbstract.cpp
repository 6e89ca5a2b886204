#include "PvProductTypeConfigRegistryAbstract.h"

#include "PvProductCheckerRegistry.h"
#include "PvProductTypeDescription.h"
#include "PvProductTypeDescriptionReader.h"

#include <QPair>

#include <algorithm>
#include <limits>

namespace {
constexpr int ProductTypeCheckerKind = 4;
// The checker kinds whose verdict decides whether a product may be offered.
constexpr int AvailabilityMask = 7;
}

PvProductTypeConfigRegistryAbstract::PvProductTypeConfigRegistryAbstract()
    : m_voidDescription(std::make_unique<PvProductTypeDescription>())
{
}

PvProductTypeConfigRegistryAbstract::~PvProductTypeConfigRegistryAbstract()
{
    qDeleteAll(m_descriptions);
}

void PvProductTypeConfigRegistryAbstract::load()
{
    const QList<QDir> dirs = supervisedDirs();
    for (const QDir& dir : dirs) {
        const QList<PvProductTypeDescription*> found = PvProductTypeDescriptionReader(dir).readDescriptions();
        m_descriptions.reserve(m_descriptions.size() + found.size());
        QList<PvProductTypeDescription*> discarded;
        for (PvProductTypeDescription* description : found) {
            if (m_descriptions.contains(description->productType()))
                discarded.append(description);
            else
                m_descriptions.insert(description->productType(), description);
        }
        qDeleteAll(discarded);
    }
}

bool PvProductTypeConfigRegistryAbstract::isValid(const PvProductType& type) const
{
    return description(type)->isValid();
}

int PvProductTypeConfigRegistryAbstract::type() const
{
    return ProductTypeCheckerKind;
}

bool PvProductTypeConfigRegistryAbstract::isValidBoxStyle(const PvProductType&, const PvArticleVariants&) const
{
    return true;
}

const PvProductTypeDescription* PvProductTypeConfigRegistryAbstract::description(const PvProductType& type) const
{
    return m_descriptions.value(type, m_voidDescription.get());
}

const PvProductTypeDescription* PvProductTypeConfigRegistryAbstract::voidDescription() const
{
    return m_voidDescription.get();
}

bool PvProductTypeConfigRegistryAbstract::exists(const PvProductType& type) const
{
    return isValid(type);
}

PvArticleClass PvProductTypeConfigRegistryAbstract::articleClass(const PvProductType& type) const
{
    return description(type)->articleClass();
}

bool PvProductTypeConfigRegistryAbstract::hasArticleClass(const PvProductType& type, const PvArticleClass& articleClass) const
{
    return description(type)->articleClass().hasAnyOf(articleClass.toUnderlying());
}

PvProductTypeList PvProductTypeConfigRegistryAbstract::allProducts() const
{
    return m_descriptions.keys();
}

PvProductTypeList PvProductTypeConfigRegistryAbstract::allAvailableProducts() const
{
    const PvProductCheckerRegistry& checkers = PvProductCheckerRegistry::instance();
    PvProductTypeList available;
    for (auto it = m_descriptions.cbegin(); it != m_descriptions.cend(); ++it) {
        if (checkers.isValid(it.key(), AvailabilityMask))
            available.append(it.key());
    }
    return available;
}

PvProductType PvProductTypeConfigRegistryAbstract::firstValidProduct(const PvProductTypeList& types) const
{
    for (const PvProductType& type : types) {
        if (description(type)->isValid())
            return type;
    }
    return {};
}

bool PvProductTypeConfigRegistryAbstract::horizontalPages(const PvProductType& type) const
{
    return description(type)->horizontalPages();
}

PvConfiguredArticleVariantList PvProductTypeConfigRegistryAbstract::variants(const PvProductType& type) const
{
    return description(type)->variants();
}

bool PvProductTypeConfigRegistryAbstract::fullBackgroundOnEachPage(const PvProductType& type) const
{
    return description(type)->putFullBackgroundOnEachPage();
}

bool PvProductTypeConfigRegistryAbstract::limitJigCategories(const PvProductType& type, const PvPageType& pageType, const PvJigType& jigType) const
{
    return description(type)->limitJigCategories(pageType, jigType);
}

PvThematicCategorySet PvProductTypeConfigRegistryAbstract::allowedJigCategories(const PvProductType& type, const PvPageType& pageType,
                                                                                const PvJigType& jigType) const
{
    return description(type)->allowedJigCategories(pageType, jigType);
}

bool PvProductTypeConfigRegistryAbstract::thereIsOnlyOneAllowedBackgroundCategory(const PvProductType& type, const PvPageType& pageType) const
{
    return description(type)->allowedJigCategories(pageType, PvJigType(PvJigTypeBackground)).size() == 1;
}

QList<int> PvProductTypeConfigRegistryAbstract::productionNumberingList(const PvProductType& type, int pageCount) const
{
    return description(type)->productionNumberingList(pageCount);
}

PvPageTypeList PvProductTypeConfigRegistryAbstract::pageTypes(const PvProductType& type, int pageCount) const
{
    // A negative count would turn into four billion pages per run.
    return description(type)->pageTypes(unsigned(std::max(pageCount, 0)));
}

PvEmptyMeansAllSet<PvProductType> PvProductTypeConfigRegistryAbstract::findProducts(const PvEmptyMeansAllSet<PvArticleClass>& articleClasses,
                                                                                    const PvEmptyMeansAllSet<PvCoverType>& coverTypes) const
{
    PvEmptyMeansAllSet<PvProductType> found;
    if (articleClasses.isEmpty() && coverTypes.isEmpty())
        return found;
    // A filter that matches nothing gives the empty set as well, which callers read as all
    // products; that is what they rely on.
    for (auto it = m_descriptions.cbegin(); it != m_descriptions.cend(); ++it) {
        if (articleClasses.sharesKey(it.value()->articleClass()) && coverTypes.sharesKey(it.value()->coverType()))
            found.insert(it.key());
    }
    return found;
}

PvProductTypeList PvProductTypeConfigRegistryAbstract::findAllIn(const PvProductClassificationGroup& group) const
{
    PvProductTypeList found;
    for (auto it = m_descriptions.cbegin(); it != m_descriptions.cend(); ++it) {
        if (it.value()->classification().group() == group)
            found.append(it.key());
    }
    return found;
}

PvProductClassificationManager PvProductTypeConfigRegistryAbstract::createProductClassifationManager(const PvArticleClass& articleClass) const
{
    QList<PvProductClassification> classifications;
    for (const PvProductTypeDescription* description : m_descriptions) {
        if (description->articleClass().hasAnyOf(articleClass.toUnderlying()))
            classifications.append(description->classification());
    }
    return PvProductClassificationManager(classifications);
}

QList<QString> PvProductTypeConfigRegistryAbstract::sortPageFileNameListInInternOrder(const PvProductType& type, const QList<QString>& fileNames) const
{
    if (fileNames.isEmpty() || !type.isValid())
        return fileNames;
    const QList<int> numbers = description(type)->productionNumberingList(int(std::min<qsizetype>(fileNames.size(), std::numeric_limits<int>::max())));
    QList<QPair<int, qsizetype>> order;
    order.reserve(numbers.size());
    for (qsizetype i = 0; i < numbers.size(); ++i)
        order.append({ numbers.at(i), i });
    std::sort(order.begin(), order.end());
    QList<QString> sorted;
    sorted.reserve(order.size());
    for (const auto& entry : order)
        sorted.append(fileNames.at(entry.second));
    return sorted;
}
