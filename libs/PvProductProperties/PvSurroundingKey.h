#pragma once

#include "PvArticleVariants.h"
#include "PvPageContext.h"
#include "pvproductproperties_export.h"

class QDebug;

/*!
 * What the editor knows about the page it is about to draw: its context, its index and the
 * chosen article variants. Surrounding descriptions are looked up by it.
 */
class PVPRODUCTPROPERTIES_EXPORT PvSurroundingKey
{
public:
    //! A left "page" at any index without variants.
    PvSurroundingKey();
    //! \a pageIndex -1 stands for any page.
    PvSurroundingKey(const PvPageContext& pageContext, int pageIndex, const PvArticleVariants& variant);
    //! Keys are plain values.
    //! @{
    PvSurroundingKey(const PvSurroundingKey& other);
    PvSurroundingKey(PvSurroundingKey&& other) noexcept;
    PvSurroundingKey& operator=(const PvSurroundingKey& other);
    PvSurroundingKey& operator=(PvSurroundingKey&& other) noexcept;
    virtual ~PvSurroundingKey();
    //! @}

    //! The page's type and alignment.
    [[nodiscard]] PvPageContext pageContext() const { return m_pageContext; }
    //! The page's index; -1 for any page.
    [[nodiscard]] int pageIndex() const { return m_pageIndex; }
    //! The chosen article variants.
    [[nodiscard]] PvArticleVariants variant() const { return m_variant; }
    //! The page's type.
    [[nodiscard]] PvPageType pageType() const { return m_pageContext.pageType(); }
    //! The page's alignment.
    [[nodiscard]] PvPageAlignment alignment() const { return m_pageContext.alignment(); }

    //! Equal context, index and variants.
    bool operator==(const PvSurroundingKey& other) const;
    //! Differs in some field.
    bool operator!=(const PvSurroundingKey& other) const { return !(*this == other); }

    /*!
     * Whether a description with this key serves the page \a other. A key for any page whose
     * context matches serves equal variants, or any variants when \a other is for any page
     * too. Otherwise only the page index decides, whatever the contexts: a description for
     * page n is drawn on page n even when its page type or alignment differ.
     */
    [[nodiscard]] bool isOkayFor(const PvSurroundingKey& other) const;

private:
    PvPageContext m_pageContext;
    int m_pageIndex = -1;
    PvArticleVariants m_variant;
};

PVPRODUCTPROPERTIES_EXPORT QDebug operator<<(QDebug debug, const PvSurroundingKey& key);
