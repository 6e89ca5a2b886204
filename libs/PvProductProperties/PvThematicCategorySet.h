#pragma once

#include "PvThematicCategory.h"
#include "pvproductproperties_export.h"

#include <QDebug>
#include <QDomElement>
#include <QList>
#include <QSet>
#include <QStringList>

/*!
 * The thematic categories of one content item, without order. Iteration follows the hash
 * order; operations that pick "the first" element take the first in that order.
 */
class PVPRODUCTPROPERTIES_EXPORT PvThematicCategorySet : public QSet<PvThematicCategory>
{
public:
    //! The empty set.
    PvThematicCategorySet();
    //! The categories of \a names.
    explicit PvThematicCategorySet(const QStringList& names);
    //! The categories of \a categories.
    explicit PvThematicCategorySet(const QList<PvThematicCategory>& categories);
    //! A set of one category.
    explicit PvThematicCategorySet(const PvThematicCategory& category);

    //! The categories named in comma-separated \a text; empty parts are skipped, parts are
    //! not trimmed.
    [[nodiscard]] static PvThematicCategorySet buildFromCSV(const QString& text);
    //! Includes the empty category for spot colour none or an unknown value.
    [[nodiscard]] static PvThematicCategorySet fromSpotColors(const QList<PvSpotColor>& spotColors);
    //! A set holding the recycle bin.
    [[nodiscard]] static PvThematicCategorySet createRecycleBinCategory();
    //! A set holding the category that shows all.
    [[nodiscard]] static PvThematicCategorySet allCategorySet();
    //! The categories that are not themes: all, recycle bin, multicolour, favourites and the two internal ones.
    [[nodiscard]] static const PvThematicCategorySet& specialCategories();
    //! Gold, rose gold, silver and emboss.
    [[nodiscard]] static const PvThematicCategorySet& allKnownSpotColorCategoriesSet();
    //! The categories "0" and "1".
    [[nodiscard]] static const PvThematicCategorySet& createCategories01();
    //! The layout shapes: large, full, top, centred, wide margin, square, middle, elegant, classic.
    [[nodiscard]] static const PvThematicCategorySet& allSmartLayoutCategories();
    //! The categories the choosers show with an icon: the spot colours and the layout shapes.
    [[nodiscard]] static const PvThematicCategorySet& categoriesWithIcon();

    //! True when \a category was already there.
    bool insertOnlyOnce(const PvThematicCategory& category);
    //! Inserts \a category unless it is the empty category.
    void insertNonEmpty(const PvThematicCategory& category);
    //! Puts an item without categories under the category for miscellaneous items.
    void insertCategoryVarious();
    //! This set with the favourites added.
    [[nodiscard]] PvThematicCategorySet plusFavourites() const;
    //! Removes every category whose internal name is among those of \a other (by name, not
    //! by key).
    PvThematicCategorySet& subtract(const PvThematicCategorySet& other);

    //! Whether \a category is an element.
    [[nodiscard]] bool contains(const PvThematicCategory& category) const;
    //! Whether every element of \a other is one of this set.
    [[nodiscard]] bool contains(const PvThematicCategorySet& other) const;
    //! Whether some element of \a other is one of this set.
    [[nodiscard]] bool containsAtLeastOne(const PvThematicCategorySet& other) const;
    //! Every element is a favourite, suggested by AI, or in \a other.
    [[nodiscard]] bool containsOnlyFavouritesAnd(const PvThematicCategorySet& other) const;
    //! Every element is a spot colour category (true for the empty set).
    [[nodiscard]] bool containsOnlySpotColorCategories() const;
    //! Some element is the category that shows all.
    [[nodiscard]] bool containsCategoryAll() const;
    //! Exactly one element, \a category.
    [[nodiscard]] bool isCategory(const PvThematicCategory& category) const;
    //! The set is exactly the category of content suggested for the user's photos.
    [[nodiscard]] bool isOnlySuggestedByAI() const;
    //! The set is exactly the category of content that fits design templates.
    [[nodiscard]] bool isOnlyFitsToStyleV2Category() const;
    //! The set is exactly the multicolour category.
    [[nodiscard]] bool isOnlyMultiColor() const;
    //! The finish of the only element; none unless there is exactly one.
    [[nodiscard]] PvSpotColor spotColor() const;
    /*!
     * The category that represents the item: the user's cliparts or design templates when
     * present, multicolour when present and preferred, else the first element that is not a
     * special category (or the first element when all are special).
     */
    [[nodiscard]] PvThematicCategory preferredCategory(bool preferMultiColor) const;
    //! The internal names of the elements.
    [[nodiscard]] QStringList toDataStringList() const;
    //! Appends one "subcategory" element per category, holding its internal name.
    void toXml(QDomElement& parent) const;
};

PVPRODUCTPROPERTIES_EXPORT QDebug operator<<(QDebug debug, const PvThematicCategorySet& categories);
