#include "PvProductTypeConfigRegistryAbstract.h"

#include "PvProductCheckerRegistry.h"
#include "PvProductTypeDescription.h"
#include "PvProductTypeDescriptionReader.h"

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
        const QHash<PvProductType, PvProductTypeDescription*> found = PvProductTypeDescriptionReader(dir).readDir();
        QList<PvProductTypeDescription*> discarded;
        for (auto it = found.cbegin(); it != found.cend(); ++it) {
            if (m_descriptions.contains(it.key()))
                discarded.append(it.value());
            else
                m_descriptions.insert(it.key(), it.value());
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
