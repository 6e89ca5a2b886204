#include "PvDefaultTemplateKey.h"

#include <QHashFunctions>

PvDefaultTemplateKey::PvDefaultTemplateKey(const PvPageContext& pageContext, PvDefaultTemplateType defaultTemplateType, int pageNumber, int scenePageCount)
    : m_pageContext(pageContext)
    , m_defaultTemplateType(defaultTemplateType)
    , m_pageNumber(pageNumber)
    , m_scenePageCount(scenePageCount)
{
}

PvDefaultTemplateKey::PvDefaultTemplateKey(const PvDefaultTemplateKey& other) = default;
PvDefaultTemplateKey::PvDefaultTemplateKey(PvDefaultTemplateKey&& other) noexcept = default;
PvDefaultTemplateKey& PvDefaultTemplateKey::operator=(const PvDefaultTemplateKey& other) = default;
PvDefaultTemplateKey& PvDefaultTemplateKey::operator=(PvDefaultTemplateKey&& other) noexcept = default;
PvDefaultTemplateKey::~PvDefaultTemplateKey() = default;

PvDefaultTemplateKey PvDefaultTemplateKey::generalized(int scenePageCount) const
{
    return PvDefaultTemplateKey(m_pageContext, m_defaultTemplateType, -1, scenePageCount);
}

size_t qHash(const PvDefaultTemplateKey& key, size_t seed) noexcept
{
    return (size_t(key.pageType().toUnderlying()) << 6) ^ (size_t(key.pageAlignment().toUnderlying()) << 3)
        ^ qHash(int(key.defaultTemplateType()), seed);
}
