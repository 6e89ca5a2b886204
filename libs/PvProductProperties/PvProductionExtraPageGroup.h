#pragma once

#include "PvProductionExtraPage.h"
#include "pvproductproperties_export.h"

#include <QDomElement>
#include <QList>

/*! One extra production page and the pages of the product that receive it. */
class PVPRODUCTPROPERTIES_EXPORT PvProductionExtraPageGroup
{
public:
    //! The most target pages one product may list, over all its groups.
    static constexpr int maxTargetPages = 100000;

    //! No target pages, no file.
    PvProductionExtraPageGroup();
    /*!
     * Reads an "item" element: the page list of its child "target_pages" (numbers and
     * ranges a-b in either order, comma-separated) and its first child "pdf".
     */
    explicit PvProductionExtraPageGroup(const QDomElement& item);
    //! Plain values.
    //! @{
    PvProductionExtraPageGroup(const PvProductionExtraPageGroup& other);
    PvProductionExtraPageGroup(PvProductionExtraPageGroup&& other) noexcept;
    PvProductionExtraPageGroup& operator=(const PvProductionExtraPageGroup& other);
    PvProductionExtraPageGroup& operator=(PvProductionExtraPageGroup&& other) noexcept;
    virtual ~PvProductionExtraPageGroup();
    //! @}

    //! The product pages that receive the file, in file order, duplicates kept.
    [[nodiscard]] QList<int> targetPages() const { return m_targetPages; }
    //! The file printed on them.
    [[nodiscard]] PvProductionExtraPage content() const { return m_content; }

    //! Only the file name of the contents counts, beside the target pages in their order.
    friend bool operator==(const PvProductionExtraPageGroup& a, const PvProductionExtraPageGroup& b)
    {
        return a.m_content.filename() == b.m_content.filename() && a.m_targetPages == b.m_targetPages;
    }
    //! Differs in file name or target pages.
    friend bool operator!=(const PvProductionExtraPageGroup& a, const PvProductionExtraPageGroup& b) { return !(a == b); }

private:
    friend class PvProductionExtraPageGroupList;

    //! Reads at most \a pageBudget target pages; parts that do not fit are skipped.
    PvProductionExtraPageGroup(const QDomElement& item, int pageBudget);
    void readTargetPages(const QDomElement& targetPages, int pageBudget);

    QList<int> m_targetPages;
    PvProductionExtraPage m_content;
};
