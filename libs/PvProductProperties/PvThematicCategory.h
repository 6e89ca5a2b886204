#pragma once

#include "PvSpotColor.h"
#include "pvproductproperties_export.h"

#include <QColor>
#include <QDebug>
#include <QHash>
#include <QString>

/*!
 * A thematic category of design content. The value is only a key into the category registry,
 * which interns the names: two categories are the same exactly when their keys are equal.
 * Names, visible names and colours are looked up through the key. Key 0 is the empty
 * category.
 */
class PVPRODUCTPROPERTIES_EXPORT PvThematicCategory
{
public:
    //! The empty category (key 0).
    PvThematicCategory();
    //! The category registered under \a name (registered on first sight).
    PvThematicCategory(const QString& name);
    //! Categories are plain keys: copies are cheap and equal.
    //! @{
    PvThematicCategory(const PvThematicCategory& other);
    PvThematicCategory(PvThematicCategory&& other) noexcept;
    PvThematicCategory& operator=(const PvThematicCategory& other);
    PvThematicCategory& operator=(PvThematicCategory&& other) noexcept;
    virtual ~PvThematicCategory();
    //! @}

    //! Same key, so the same internal name.
    bool operator==(const PvThematicCategory& other) const { return m_key == other.m_key; }
    //! Different keys.
    bool operator!=(const PvThematicCategory& other) const { return m_key != other.m_key; }
    //! Registration order, not alphabetical.
    bool operator<(const PvThematicCategory& other) const { return m_key < other.m_key; }
    //! The registry key, which is also the hash.
    [[nodiscard]] qint64 hashValue() const { return m_key; }

    //! True when the internal name is empty: key 0, or a category made from "".
    [[nodiscard]] bool isEmpty() const;
    //! The name the category was registered under.
    [[nodiscard]] QString internalName() const;
    //! The name shown to the user: the translation of the internal name unless set otherwise.
    [[nodiscard]] QString visibleName() const;
    //! An empty \a name restores the translation of the internal name.
    void setVisibleName(const QString& name);

    //! The category of a spot colour finish; the empty category for none or an unknown value.
    [[nodiscard]] static PvThematicCategory fromSpotColor(const PvSpotColor& spotColor);
    //! The finish this category stands for; none for any other category.
    [[nodiscard]] PvSpotColor toSpotColor() const;
    //! The four spot colour finishes and their categories.
    [[nodiscard]] static const QHash<PvSpotColor, PvThematicCategory>& spotColorHash();

    /*!
     * The colour of \a internalName in "colors.xml". A name without a valid entry of ten
     * characters or more falls back to the name without its last nine (the length of
     * "_metallic", whatever they are).
     */
    [[nodiscard]] static QColor color(const QString& internalName);
    //! The colour of the internal name; see the static color().
    [[nodiscard]] QColor color() const;
    //! Text whose ordering groups categories by colour: weakly saturated first, then by hue,
    //! saturation and value.
    [[nodiscard]] QString colorSortKey() const;
    //! Visible-name order with the user's own categories first.
    [[nodiscard]] static bool compareAlphabetically(const PvThematicCategory& a, const PvThematicCategory& b);

    //! The special category "Gold".
    [[nodiscard]] static PvThematicCategory gold();
    //! The special category "Roségold".
    [[nodiscard]] static PvThematicCategory roseGold();
    //! The special category "Silber".
    [[nodiscard]] static PvThematicCategory silver();
    //! The special category "Effektlack".
    [[nodiscard]] static PvThematicCategory emboss();
    //! Named by the translation of "Alle anzeigen" at the first call.
    [[nodiscard]] static PvThematicCategory categoryAll();
    //! The special category "Papierkorb".
    [[nodiscard]] static PvThematicCategory recycleBin();
    //! The special category "Multicolor".
    [[nodiscard]] static PvThematicCategory multiColor();
    //! The special category "Farben".
    [[nodiscard]] static PvThematicCategory colorsCategory();
    //! The special category "category-last-downloaded".
    [[nodiscard]] static PvThematicCategory newInstalledCategory();
    //! The special category "category-colours".
    [[nodiscard]] static PvThematicCategory flatColor();
    //! The special category "Favoriten".
    [[nodiscard]] static PvThematicCategory favourites();
    //! The special category "Passend zu Ihren Fotos".
    [[nodiscard]] static PvThematicCategory suggestedByAI();
    //! The special category "Passend zur Einband-Innenseite".
    [[nodiscard]] static PvThematicCategory matchingToFlyleaf();
    //! The special category "Meine Layouts".
    [[nodiscard]] static PvThematicCategory userLayouts();
    //! The special category "Meine Cliparts".
    [[nodiscard]] static PvThematicCategory userCliparts();
    //! The special category "InterneMasken".
    [[nodiscard]] static PvThematicCategory passpartouts();
    //! The special category "Meine Rahmen".
    [[nodiscard]] static PvThematicCategory userMaskFrames();
    //! The special category "Meine Masken".
    [[nodiscard]] static PvThematicCategory userMask();
    //! The special category "Meine Designvorlagen".
    [[nodiscard]] static PvThematicCategory userBookStyles();
    //! The special category "InterneRahmen".
    [[nodiscard]] static PvThematicCategory frames();
    //! The special category "Stile mit gewählter Veredelung".
    [[nodiscard]] static PvThematicCategory fitsToSpotColor();
    //! The special category "0".
    [[nodiscard]] static PvThematicCategory category0();
    //! The special category "1".
    [[nodiscard]] static PvThematicCategory category1();
    //! The special category "2".
    [[nodiscard]] static PvThematicCategory category2();
    //! The special category "category-fits-to-styleV2".
    [[nodiscard]] static PvThematicCategory fitsToStyleV2Category();
    //! The special category "feature-linnen-capable".
    [[nodiscard]] static PvThematicCategory linnenCapable();
    //! The special category "pseudo-category-inverted".
    [[nodiscard]] static PvThematicCategory pseudoCategoryInverted();
    //! The special category "large".
    [[nodiscard]] static PvThematicCategory layoutLargeArea();
    //! The special category "full".
    [[nodiscard]] static PvThematicCategory layoutFullArea();
    //! The special category "Oben".
    [[nodiscard]] static PvThematicCategory layoutTop();
    //! The special category "Zentriert".
    [[nodiscard]] static PvThematicCategory layoutCentered();
    //! The special category "Breiter Rand".
    [[nodiscard]] static PvThematicCategory layoutWideMargin();
    //! The special category "Quadratisch".
    [[nodiscard]] static PvThematicCategory layoutQuadratic();
    //! The special category "Mittig".
    [[nodiscard]] static PvThematicCategory layoutMiddle();
    //! The special category "Elegant".
    [[nodiscard]] static PvThematicCategory layoutElegant();
    //! The special category "Klassisch".
    [[nodiscard]] static PvThematicCategory layoutClassic();

    //! The translation of "Alle anzeigen", evaluated on every call.
    [[nodiscard]] static QString allText();
    //! "Multicolor", the internal name of multi-coloured backgrounds.
    [[nodiscard]] static QString multiColorBackgroundCategoryName();
    //! "InterneMasken", the internal category of passe-partouts.
    [[nodiscard]] static QString passepartoutInternalCategoryName();
    //! "InterneRahmen", the internal category of frames.
    [[nodiscard]] static QString framesInternalCategoryName();
    //! The visible name of the category "Farben".
    [[nodiscard]] static QString flatColorBackgroundCategoryName();

    //! Whether this is the recycle bin.
    [[nodiscard]] bool isRecycleBin() const;
    //! Whether this is the favourites.
    [[nodiscard]] bool isFavourite() const;
    //! Whether this is the category of content suggested for the user's photos.
    [[nodiscard]] bool isSuggestedByAI() const;
    //! Whether this is the category that shows all.
    [[nodiscard]] bool isCategoryAll() const;
    //! Whether this is gold, rose gold, silver or emboss.
    [[nodiscard]] bool isSpotColorCategory() const;
    //! One of the two internal categories (frames and passe-partouts).
    [[nodiscard]] bool isPrimaryCategory() const;
    //! One of the user's own categories: layouts, cliparts, frames, masks, design templates.
    [[nodiscard]] bool isUserCategory() const;
    //! One of PvThematicCategorySet::allSmartLayoutCategories().
    [[nodiscard]] bool isSmartLayoutCategory() const;

private:
    int m_key = 0;
};

//! The key combined with the seed, unmixed.
inline size_t qHash(const PvThematicCategory& category, size_t seed = 0) noexcept
{
    return size_t(category.hashValue()) ^ seed;
}

PVPRODUCTPROPERTIES_EXPORT QDebug operator<<(QDebug debug, const PvThematicCategory& category);
