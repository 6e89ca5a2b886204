#pragma once

#include "PvDefaultTemplateType.h"
#include "PvPageContext.h"
#include "pvproductproperties_export.h"

/*!
 * What a default template is looked up by: the page's type and alignment, the kind of
 * template, and optionally the page number and the number of pages of the scene (-1: any).
 */
class PVPRODUCTPROPERTIES_EXPORT PvDefaultTemplateKey
{
public:
    PvDefaultTemplateKey() = default;
    //! The key of a template of type \a defaultTemplateType for \a pageContext; -1 leaves page number and scene page count open.
    PvDefaultTemplateKey(const PvPageContext& pageContext, PvDefaultTemplateType defaultTemplateType, int pageNumber = -1, int scenePageCount = -1);
    //! Keys are plain values.
    //! @{
    PvDefaultTemplateKey(const PvDefaultTemplateKey& other);
    PvDefaultTemplateKey(PvDefaultTemplateKey&& other) noexcept;
    PvDefaultTemplateKey& operator=(const PvDefaultTemplateKey& other);
    PvDefaultTemplateKey& operator=(PvDefaultTemplateKey&& other) noexcept;
    virtual ~PvDefaultTemplateKey();
    //! @}

    //! The page's type and alignment.
    [[nodiscard]] PvPageContext pageContext() const { return m_pageContext; }
    //! The page's type.
    [[nodiscard]] PvPageType pageType() const { return m_pageContext.pageType(); }
    //! The page's alignment.
    [[nodiscard]] PvPageAlignment pageAlignment() const { return m_pageContext.alignment(); }
    //! The kind of template: layout, background, ...
    [[nodiscard]] PvDefaultTemplateType defaultTemplateType() const { return m_defaultTemplateType; }
    //! The page number; -1 for any.
    [[nodiscard]] int pageNumber() const { return m_pageNumber; }
    //! The number of pages of the scene; -1 for any.
    [[nodiscard]] int scenePageCount() const { return m_scenePageCount; }

    //! The same key for any page number and scene page count \a scenePageCount.
    [[nodiscard]] PvDefaultTemplateKey generalized(int scenePageCount) const;

    //! Equal in every field.
    friend bool operator==(const PvDefaultTemplateKey& a, const PvDefaultTemplateKey& b)
    {
        return a.m_defaultTemplateType == b.m_defaultTemplateType && a.m_pageContext == b.m_pageContext
            && a.m_pageNumber == b.m_pageNumber && a.m_scenePageCount == b.m_scenePageCount;
    }
    //! Differs in some field.
    friend bool operator!=(const PvDefaultTemplateKey& a, const PvDefaultTemplateKey& b) { return !(a == b); }

private:
    PvPageContext m_pageContext;
    PvDefaultTemplateType m_defaultTemplateType = PvDefaultTemplateTypeLayout;
    int m_pageNumber = -1;
    int m_scenePageCount = -1;
};

//! Page number and scene page count are left out: keys differing only there share a bucket.
PVPRODUCTPROPERTIES_EXPORT size_t qHash(const PvDefaultTemplateKey& key, size_t seed = 0) noexcept;
