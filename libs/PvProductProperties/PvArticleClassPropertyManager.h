#pragma once

#include "PvArticleClass.h"
#include "PvArticleClassProperties.h"
#include "PvFotoPaperType.h"
#include "pvproductproperties_export.h"

#include <map>
#include <memory>

/*!
 * Keeps one PvArticleClassProperties per article class, created with defaults on first
 * request. The objects are owned here and keep their address for the manager's life.
 */
class PVPRODUCTPROPERTIES_EXPORT PvArticleClassPropertyManager
{
public:
    PvArticleClassPropertyManager();
    PvArticleClassPropertyManager(const PvArticleClassPropertyManager&) = delete;
    PvArticleClassPropertyManager& operator=(const PvArticleClassPropertyManager&) = delete;
    //! Moves take the properties along; their addresses stay.
    //! @{
    PvArticleClassPropertyManager(PvArticleClassPropertyManager&& other) noexcept;
    PvArticleClassPropertyManager& operator=(PvArticleClassPropertyManager&& other) noexcept;
    //! @}
    ~PvArticleClassPropertyManager();

    //! The properties of \a articleClass, created on first request; never null.
    [[nodiscard]] PvArticleClassProperties* articleClassProperties(const PvArticleClass& articleClass);
    //! The photo paper of \a articleClass.
    [[nodiscard]] PvFotoPaperType paperType(const PvArticleClass& articleClass);
    //! Sets the photo paper of \a articleClass.
    void setPaperType(const PvArticleClass& articleClass, const PvFotoPaperType& paperType);

private:
    std::map<PvArticleClass, std::unique_ptr<PvArticleClassProperties>> m_properties;
};
