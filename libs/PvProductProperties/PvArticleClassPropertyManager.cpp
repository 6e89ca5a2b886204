#include "PvArticleClassPropertyManager.h"

PvArticleClassPropertyManager::PvArticleClassPropertyManager() = default;
PvArticleClassPropertyManager::PvArticleClassPropertyManager(PvArticleClassPropertyManager&& other) noexcept = default;
PvArticleClassPropertyManager& PvArticleClassPropertyManager::operator=(PvArticleClassPropertyManager&& other) noexcept = default;
PvArticleClassPropertyManager::~PvArticleClassPropertyManager() = default;

PvArticleClassProperties* PvArticleClassPropertyManager::articleClassProperties(const PvArticleClass& articleClass)
{
    std::unique_ptr<PvArticleClassProperties>& properties = m_properties[articleClass];
    if (!properties)
        properties = std::make_unique<PvArticleClassProperties>();
    return properties.get();
}

PvFotoPaperType PvArticleClassPropertyManager::paperType(const PvArticleClass& articleClass)
{
    return articleClassProperties(articleClass)->paperType();
}

void PvArticleClassPropertyManager::setPaperType(const PvArticleClass& articleClass, const PvFotoPaperType& paperType)
{
    articleClassProperties(articleClass)->setPaperType(paperType);
}
