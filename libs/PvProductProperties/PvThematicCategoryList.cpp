#include "PvThematicCategoryList.h"

#include "PvThematicCategorySet.h"

#include <algorithm>

PvThematicCategoryList::PvThematicCategoryList() = default;

PvThematicCategoryList::PvThematicCategoryList(const QList<PvThematicCategory>& categories)
    : QList<PvThematicCategory>(categories)
{
}

PvThematicCategoryList::PvThematicCategoryList(const PvThematicCategorySet& categories)
    : QList<PvThematicCategory>(categories.cbegin(), categories.cend())
{
}

void PvThematicCategoryList::removePrimaryCategories()
{
    removeIf([](const PvThematicCategory& category) { return category.isPrimaryCategory(); });
}

void PvThematicCategoryList::sortByColor()
{
    std::sort(begin(), end(), colorLessThan);
}

bool colorLessThan(const PvThematicCategory& a, const PvThematicCategory& b)
{
    return a.colorSortKey() < b.colorSortKey();
}
