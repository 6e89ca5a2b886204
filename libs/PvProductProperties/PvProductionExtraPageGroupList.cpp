#include "PvProductionExtraPageGroupList.h"
#include "PvXMLChildElements.h"

PvProductionExtraPageGroupList::PvProductionExtraPageGroupList() = default;

PvProductionExtraPageGroupList::PvProductionExtraPageGroupList(const QDomElement& extraPages)
{
    const QString item = QStringLiteral("item");
    int total = 0;
    for (const QDomElement element : PvXMLChildElements(extraPages, item)) {
        // The budget spans the whole list, so many items cannot add up to what one range may not.
        m_groups.append(PvProductionExtraPageGroup(element, PvProductionExtraPageGroup::maxTargetPages - total));
        total += int(m_groups.constLast().targetPages().size());
    }
}

PvProductionExtraPageGroupList::PvProductionExtraPageGroupList(const PvProductionExtraPageGroupList& other) = default;
PvProductionExtraPageGroupList::PvProductionExtraPageGroupList(PvProductionExtraPageGroupList&& other) noexcept = default;
PvProductionExtraPageGroupList& PvProductionExtraPageGroupList::operator=(const PvProductionExtraPageGroupList& other) = default;
PvProductionExtraPageGroupList& PvProductionExtraPageGroupList::operator=(PvProductionExtraPageGroupList&& other) noexcept = default;
PvProductionExtraPageGroupList::~PvProductionExtraPageGroupList() = default;

int PvProductionExtraPageGroupList::totalPages() const
{
    int total = 0;
    for (const PvProductionExtraPageGroup& group : m_groups)
        total += int(group.targetPages().size());
    return total;
}
