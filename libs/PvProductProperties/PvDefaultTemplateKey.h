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
    PvDefaultTemplateKey(const PvPageContext& pageContext, PvDefaultTemplateType defaultTemplateType, int pageNumber = -1, int scenePageCount = -1);
    PvDefaultTemplateKey(const PvDefaultTemplateKey& other);
    PvDefaultTemplateKey(PvDefaultTemplateKey&& other) noexcept;
    PvDefaultTemplateKey& operator=(const PvDefaultTemplateKey& other);
    PvDefaultTemplateKey& operator=(PvDefaultTemplateKey&& other) noexcept;
    virtual ~PvDefaultTemplateKey();

    [[nodiscard]] PvPageContext pageContext() const { return m_pageContext; }
    [[nodiscard]] PvPageType pageType() const { return m_pageContext.pageType(); }
    [[nodiscard]] PvPageAlignment pageAlignment() const { return m_pageContext.alignment(); }
    [[nodiscard]] PvDefaultTemplateType defaultTemplateType() const { return m_defaultTemplateType; }
    [[nodiscard]] int pageNumber() const { return m_pageNumber; }
    [[nodiscard]] int scenePageCount() const { return m_scenePageCount; }

    //! The same key for any page number and scene page count \a scenePageCount.
    [[nodiscard]] PvDefaultTemplateKey generalized(int scenePageCount) const;

    friend bool operator==(const PvDefaultTemplateKey& a, const PvDefaultTemplateKey& b)
    {
        return a.m_defaultTemplateType == b.m_defaultTemplateType && a.m_pageContext == b.m_pageContext
            && a.m_pageNumber == b.m_pageNumber && a.m_scenePageCount == b.m_scenePageCount;
    }
    friend bool operator!=(const PvDefaultTemplateKey& a, const PvDefaultTemplateKey& b) { return !(a == b); }

private:
    PvPageContext m_pageContext;
    PvDefaultTemplateType m_defaultTemplateType = PvDefaultTemplateTypeLayout;
    int m_pageNumber = -1;
    int m_scenePageCount = -1;
};

//! Page number and scene page count are left out: keys differing only there share a bucket.
PVPRODUCTPROPERTIES_EXPORT size_t qHash(const PvDefaultTemplateKey& key, size_t seed = 0) noexcept;
