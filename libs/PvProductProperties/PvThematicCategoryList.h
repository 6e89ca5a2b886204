#pragma once

#include "PvThematicCategory.h"
#include "pvproductproperties_export.h"

#include <QList>

class PvThematicCategorySet;

/*! Thematic categories in display order. */
class PVPRODUCTPROPERTIES_EXPORT PvThematicCategoryList : public QList<PvThematicCategory>
{
public:
    PvThematicCategoryList();
    //! The list of \a categories, in their order.
    PvThematicCategoryList(const QList<PvThematicCategory>& categories);
    //! The set's elements in its iteration order.
    explicit PvThematicCategoryList(const PvThematicCategorySet& categories);

    //! Drops the internal frame and passe-partout categories, keeping the order of the rest.
    void removePrimaryCategories();
    //! Groups by colour; equal colour keys end in unspecified order.
    void sortByColor();
};

//! Orders by colorSortKey().
PVPRODUCTPROPERTIES_EXPORT bool colorLessThan(const PvThematicCategory& a, const PvThematicCategory& b);
