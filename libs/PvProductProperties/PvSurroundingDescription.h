#pragma once

#include "PvArticleVariants.h"
#include "PvCalendarHoleConfig.h"
#include "PvPageAlignment.h"
#include "PvPageType.h"
#include "PvProductType.h"
#include "PvSpiralConfig.h"
#include "PvSurroundingType.h"
#include "pvproductproperties_export.h"

#include <QDomElement>
#include <QDomNamedNodeMap>
#include <QList>
#include <QRect>
#include <QSharedDataPointer>
#include <QSize>
#include <QString>

class PvSurroundingDescriptionImpl;
class PvSurroundingKey;

/*!
 * One picture or piece of furniture drawn around or over the pages of a product: which pages
 * it is for, what to draw, whether over or under the content, and the spiral and hole it
 * brings. Read from a "surrounding" element. A default-constructed description (type 0, no
 * image) stands for "no surrounding".
 */
class PVPRODUCTPROPERTIES_EXPORT PvSurroundingDescription
{
public:
    PvSurroundingDescription();
    //! Reads the attributes and children of a "surrounding" element.
    PvSurroundingDescription(const PvProductType& productType, const QDomElement& element);
    //! Reads \a attributes in place of the element's own (e.g. merged from elsewhere) and the element's children.
    PvSurroundingDescription(const PvProductType& productType, const QDomElement& element, const QDomNamedNodeMap& attributes);
    PvSurroundingDescription(const PvSurroundingDescription& other);
    PvSurroundingDescription(PvSurroundingDescription&& other) noexcept;
    PvSurroundingDescription& operator=(const PvSurroundingDescription& other);
    PvSurroundingDescription& operator=(PvSurroundingDescription&& other) noexcept;
    ~PvSurroundingDescription();

    //! Whether this description is drawn on the page of \a key (see PvSurroundingKey::isOkayFor()).
    [[nodiscard]] bool isSuitable(const PvSurroundingKey& key) const;

    [[nodiscard]] PvProductType productType() const;
    [[nodiscard]] PvSurroundingType surroundingType() const;
    [[nodiscard]] PvPageType pageTypes() const;
    [[nodiscard]] PvPageAlignment alignments() const;
    //! The one page this description is for, or -1 for every page its context matches.
    [[nodiscard]] int pageNr() const;
    [[nodiscard]] PvArticleVariants variant() const;
    [[nodiscard]] bool paintOnTop() const;
    [[nodiscard]] bool canBeHiddenByUser() const;
    [[nodiscard]] bool hideGrafikInPreview() const;
    [[nodiscard]] QString imageResource() const;
    [[nodiscard]] QString imageResourceSpotColor() const;
    [[nodiscard]] bool hasBindingShade() const;
    [[nodiscard]] QRect editableArea() const;
    [[nodiscard]] PvCalendarHoleConfig calendarHoleConfig() const;
    [[nodiscard]] PvSpiralConfig spiralConfig() const;
    [[nodiscard]] QSize tileSize() const;
    //! The fold is switched on and has a width.
    [[nodiscard]] bool hasSpineFold() const;
    [[nodiscard]] int spineFoldWidth() const;
    //! The fold width with 20 % added, truncated.
    [[nodiscard]] int spineFoldWithSafetyMargins() const;

    //! Page number, surrounding type, page types and alignments mixed into one hash.
    [[nodiscard]] size_t hashValue() const;

    bool operator==(const PvSurroundingDescription& other) const;
    bool operator!=(const PvSurroundingDescription& other) const { return !(*this == other); }

    /*!
     * Rectangles written as "left top right bottom" groups separated by ";", the numbers
     * separated by single blanks. Reading stops at the first group that is not four numbers;
     * the rectangles read until then are returned.
     */
    [[nodiscard]] static QList<QRect> parseMask(const QString& text);

private:
    QSharedDataPointer<PvSurroundingDescriptionImpl> d;
};
