#pragma once

#include "PvProductionExtraPageGroup.h"
#include "pvproductproperties_export.h"

#include <QDomElement>
#include <QList>

/*! The extra production pages of a product, in the order of its product file. */
class PVPRODUCTPROPERTIES_EXPORT PvProductionExtraPageGroupList
{
public:
    //! No groups.
    PvProductionExtraPageGroupList();
    /*!
     * Reads an "extra_production_pages" element: one group per child "item". Groups stop
     * taking pages once the list holds PvProductionExtraPageGroup::maxTargetPages.
     */
    explicit PvProductionExtraPageGroupList(const QDomElement& extraPages);
    //! Lists are plain values.
    //! @{
    PvProductionExtraPageGroupList(const PvProductionExtraPageGroupList& other);
    PvProductionExtraPageGroupList(PvProductionExtraPageGroupList&& other) noexcept;
    PvProductionExtraPageGroupList& operator=(const PvProductionExtraPageGroupList& other);
    PvProductionExtraPageGroupList& operator=(PvProductionExtraPageGroupList&& other) noexcept;
    virtual ~PvProductionExtraPageGroupList();
    //! @}

    //! The groups, in file order.
    [[nodiscard]] QList<PvProductionExtraPageGroup> groups() const { return m_groups; }
    //! The number of groups.
    [[nodiscard]] qsizetype size() const { return m_groups.size(); }
    //! Whether there are no groups.
    [[nodiscard]] bool isEmpty() const { return m_groups.isEmpty(); }
    //! The group at \a index, which must be valid.
    [[nodiscard]] const PvProductionExtraPageGroup& at(qsizetype index) const { return m_groups.at(index); }
    //! Iteration over the groups.
    [[nodiscard]] QList<PvProductionExtraPageGroup>::const_iterator begin() const { return m_groups.cbegin(); }
    //! The end of iteration over the groups.
    [[nodiscard]] QList<PvProductionExtraPageGroup>::const_iterator end() const { return m_groups.cend(); }

    //! The number of target pages over all groups; a page listed twice counts twice.
    [[nodiscard]] int totalPages() const;

    //! Equal groups in the same order.
    friend bool operator==(const PvProductionExtraPageGroupList& a, const PvProductionExtraPageGroupList& b) { return a.m_groups == b.m_groups; }
    //! Differs in some group.
    friend bool operator!=(const PvProductionExtraPageGroupList& a, const PvProductionExtraPageGroupList& b) { return !(a == b); }

private:
    QList<PvProductionExtraPageGroup> m_groups;
};
