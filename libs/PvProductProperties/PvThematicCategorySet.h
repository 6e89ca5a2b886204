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
    PvThematicCategorySet();
    explicit PvThematicCategorySet(const QStringList& names);
    explicit PvThematicCategorySet(const QList<PvThematicCategory>& categories);
    explicit PvThematicCategorySet(const PvThematicCategory& category);

    //! The categories named in comma-separated \a text; empty parts are skipped, parts are
    //! not trimmed.
    [[nodiscard]] static PvThematicCategorySet buildFromCSV(const QString& text);
    //! Includes the empty category for spot colour none or an unknown value.
    [[nodiscard]] static PvThematicCategorySet fromSpotColors(const QList<PvSpotColor>& spotColors);
    [[nodiscard]] static PvThematicCategorySet createRecycleBinCategory();
    [[nodiscard]] static PvThematicCategorySet allCategorySet();
    [[nodiscard]] static const PvThematicCategorySet& specialCategories();
    [[nodiscard]] static const PvThematicCategorySet& allKnownSpotColorCategoriesSet();
    [[nodiscard]] static const PvThematicCategorySet& createCategories01();
    [[nodiscard]] static const PvThematicCategorySet& allSmartLayoutCategories();
    [[nodiscard]] static const PvThematicCategorySet& categoriesWithIcon();

    //! True when \a category was already there.
    bool insertOnlyOnce(const PvThematicCategory& category);
    void insertNonEmpty(const PvThematicCategory& category);
    //! Puts an item without categories under the category for miscellaneous items.
    void insertCategoryVarious();
    [[nodiscard]] PvThematicCategorySet plusFavourites() const;
    //! Removes every category whose internal name is among those of \a other (by name, not
    //! by key).
    PvThematicCategorySet& subtract(const PvThematicCategorySet& other);

    [[nodiscard]] bool contains(const PvThematicCategory& category) const;
    [[nodiscard]] bool contains(const PvThematicCategorySet& other) const;
    [[nodiscard]] bool containsAtLeastOne(const PvThematicCategorySet& other) const;
    //! Every element is a favourite, suggested by AI, or in \a other.
    [[nodiscard]] bool containsOnlyFavouritesAnd(const PvThematicCategorySet& other) const;
    [[nodiscard]] bool containsOnlySpotColorCategories() const;
    [[nodiscard]] bool containsCategoryAll() const;
    //! Exactly one element, \a category.
    [[nodiscard]] bool isCategory(const PvThematicCategory& category) const;
    [[nodiscard]] bool isOnlySuggestedByAI() const;
    [[nodiscard]] bool isOnlyFitsToStyleV2Category() const;
    [[nodiscard]] bool isOnlyMultiColor() const;
    //! The finish of the only element; none unless there is exactly one.
    [[nodiscard]] PvSpotColor spotColor() const;
    /*!
     * The category that represents the item: the user's cliparts or design templates when
     * present, multicolour when present and preferred, else the first element that is not a
     * special category (or the first element when all are special).
     */
    [[nodiscard]] PvThematicCategory preferredCategory(bool preferMultiColor) const;
    [[nodiscard]] QStringList toDataStringList() const;
    //! Appends one "subcategory" element per category, holding its internal name.
    void toXml(QDomElement& parent) const;
};

PVPRODUCTPROPERTIES_EXPORT QDebug operator<<(QDebug debug, const PvThematicCategorySet& categories);
