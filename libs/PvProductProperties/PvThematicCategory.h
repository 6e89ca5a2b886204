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
    PvThematicCategory();
    //! The category registered under \a name (registered on first sight).
    PvThematicCategory(const QString& name);
    PvThematicCategory(const PvThematicCategory& other);
    PvThematicCategory(PvThematicCategory&& other) noexcept;
    PvThematicCategory& operator=(const PvThematicCategory& other);
    PvThematicCategory& operator=(PvThematicCategory&& other) noexcept;
    virtual ~PvThematicCategory();

    bool operator==(const PvThematicCategory& other) const { return m_key == other.m_key; }
    bool operator!=(const PvThematicCategory& other) const { return m_key != other.m_key; }
    //! Registration order, not alphabetical.
    bool operator<(const PvThematicCategory& other) const { return m_key < other.m_key; }
    [[nodiscard]] qint64 hashValue() const { return m_key; }

    //! True when the internal name is empty: key 0, or a category made from "".
    [[nodiscard]] bool isEmpty() const;
    [[nodiscard]] QString internalName() const;
    [[nodiscard]] QString visibleName() const;
    //! An empty \a name restores the translation of the internal name.
    void setVisibleName(const QString& name);

    //! The category of a spot colour finish; the empty category for none or an unknown value.
    [[nodiscard]] static PvThematicCategory fromSpotColor(const PvSpotColor& spotColor);
    //! The finish this category stands for; none for any other category.
    [[nodiscard]] PvSpotColor toSpotColor() const;
    [[nodiscard]] static const QHash<PvSpotColor, PvThematicCategory>& spotColorHash();

    /*!
     * The colour of \a internalName in "colors.xml". A name without a valid entry of ten
     * characters or more falls back to the name without its last nine (the length of
     * "_metallic", whatever they are).
     */
    [[nodiscard]] static QColor color(const QString& internalName);
    [[nodiscard]] QColor color() const;
    //! Text whose ordering groups categories by colour: weakly saturated first, then by hue,
    //! saturation and value.
    [[nodiscard]] QString colorSortKey() const;
    //! Visible-name order with the user's own categories first.
    [[nodiscard]] static bool compareAlphabetically(const PvThematicCategory& a, const PvThematicCategory& b);

    [[nodiscard]] static PvThematicCategory gold();
    [[nodiscard]] static PvThematicCategory roseGold();
    [[nodiscard]] static PvThematicCategory silver();
    [[nodiscard]] static PvThematicCategory emboss();
    //! Named by the translation of "Alle anzeigen" at the first call.
    [[nodiscard]] static PvThematicCategory categoryAll();
    [[nodiscard]] static PvThematicCategory recycleBin();
    [[nodiscard]] static PvThematicCategory multiColor();
    [[nodiscard]] static PvThematicCategory colorsCategory();
    [[nodiscard]] static PvThematicCategory newInstalledCategory();
    [[nodiscard]] static PvThematicCategory flatColor();
    [[nodiscard]] static PvThematicCategory favourites();
    [[nodiscard]] static PvThematicCategory suggestedByAI();
    [[nodiscard]] static PvThematicCategory matchingToFlyleaf();
    [[nodiscard]] static PvThematicCategory userLayouts();
    [[nodiscard]] static PvThematicCategory userCliparts();
    [[nodiscard]] static PvThematicCategory passpartouts();
    [[nodiscard]] static PvThematicCategory userMaskFrames();
    [[nodiscard]] static PvThematicCategory userMask();
    [[nodiscard]] static PvThematicCategory userBookStyles();
    [[nodiscard]] static PvThematicCategory frames();
    [[nodiscard]] static PvThematicCategory fitsToSpotColor();
    [[nodiscard]] static PvThematicCategory category0();
    [[nodiscard]] static PvThematicCategory category1();
    [[nodiscard]] static PvThematicCategory category2();
    [[nodiscard]] static PvThematicCategory fitsToStyleV2Category();
    [[nodiscard]] static PvThematicCategory linnenCapable();
    [[nodiscard]] static PvThematicCategory pseudoCategoryInverted();
    [[nodiscard]] static PvThematicCategory layoutLargeArea();
    [[nodiscard]] static PvThematicCategory layoutFullArea();
    [[nodiscard]] static PvThematicCategory layoutTop();
    [[nodiscard]] static PvThematicCategory layoutCentered();
    [[nodiscard]] static PvThematicCategory layoutWideMargin();
    [[nodiscard]] static PvThematicCategory layoutQuadratic();
    [[nodiscard]] static PvThematicCategory layoutMiddle();
    [[nodiscard]] static PvThematicCategory layoutElegant();
    [[nodiscard]] static PvThematicCategory layoutClassic();

    //! The translation of "Alle anzeigen", evaluated on every call.
    [[nodiscard]] static QString allText();
    [[nodiscard]] static QString multiColorBackgroundCategoryName();
    [[nodiscard]] static QString passepartoutInternalCategoryName();
    [[nodiscard]] static QString framesInternalCategoryName();
    [[nodiscard]] static QString flatColorBackgroundCategoryName();

    [[nodiscard]] bool isRecycleBin() const;
    [[nodiscard]] bool isFavourite() const;
    [[nodiscard]] bool isSuggestedByAI() const;
    [[nodiscard]] bool isCategoryAll() const;
    [[nodiscard]] bool isSpotColorCategory() const;
    //! One of the two internal categories (frames and passe-partouts).
    [[nodiscard]] bool isPrimaryCategory() const;
    [[nodiscard]] bool isUserCategory() const;
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
