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
    //! No surrounding: type 0, no image.
    PvSurroundingDescription();
    //! Reads the attributes and children of a "surrounding" element.
    PvSurroundingDescription(const PvProductType& productType, const QDomElement& element);
    //! Reads \a attributes in place of the element's own (e.g. merged from elsewhere) and the element's children.
    PvSurroundingDescription(const PvProductType& productType, const QDomElement& element, const QDomNamedNodeMap& attributes);
    //! Values share their data; copies are cheap.
    //! @{
    PvSurroundingDescription(const PvSurroundingDescription& other);
    PvSurroundingDescription(PvSurroundingDescription&& other) noexcept;
    PvSurroundingDescription& operator=(const PvSurroundingDescription& other);
    PvSurroundingDescription& operator=(PvSurroundingDescription&& other) noexcept;
    ~PvSurroundingDescription();
    //! @}

    //! Whether this description is drawn on the page of \a key (see PvSurroundingKey::isOkayFor()).
    [[nodiscard]] bool isSuitable(const PvSurroundingKey& key) const;

    //! The product type the description belongs to.
    [[nodiscard]] PvProductType productType() const;
    //! What is drawn: binding, frame, passe-partout, ... ("type", default "book").
    [[nodiscard]] PvSurroundingType surroundingType() const;
    //! The page types it is drawn on ("pageType", default all; a frame is on all).
    [[nodiscard]] PvPageType pageTypes() const;
    //! The alignments of the pages it is drawn on ("alignment", default all).
    [[nodiscard]] PvPageAlignment alignments() const;
    //! The one page this description is for, or -1 for every page its context matches.
    [[nodiscard]] int pageNr() const;
    //! The article variants it is for ("variant"); empty for every variant.
    [[nodiscard]] PvArticleVariants variant() const;
    //! Drawn over the content rather than under it ("paintOnTop", default true).
    [[nodiscard]] bool paintOnTop() const;
    //! The user may hide it ("canBeHiddenByUser").
    [[nodiscard]] bool canBeHiddenByUser() const;
    //! Left out of the preview ("hideGrafikInPreview").
    [[nodiscard]] bool hideGrafikInPreview() const;
    //! The picture to draw ("image").
    [[nodiscard]] QString imageResource() const;
    //! The picture of the spot colour finish ("imageSpotColor").
    [[nodiscard]] QString imageResourceSpotColor() const;
    //! Draws a shade along the binding ("hasbindingshade").
    [[nodiscard]] bool hasBindingShade() const;
    //! The part of the page the user designs ("x", "y", "width", "height").
    [[nodiscard]] QRect editableArea() const;
    //! The calendar hole it brings.
    [[nodiscard]] PvCalendarHoleConfig calendarHoleConfig() const;
    //! The spiral binding it brings.
    [[nodiscard]] PvSpiralConfig spiralConfig() const;
    //! The size of a tile when the picture is tiled; -1 for untiled.
    [[nodiscard]] QSize tileSize() const;
    //! The fold is switched on and has a width.
    [[nodiscard]] bool hasSpineFold() const;
    //! The width of the fold along the spine ("spinefoldwidth").
    [[nodiscard]] int spineFoldWidth() const;
    //! The fold width with 20 % added, truncated.
    [[nodiscard]] int spineFoldWithSafetyMargins() const;

    //! Page number, surrounding type, page types and alignments mixed into one hash.
    [[nodiscard]] size_t hashValue() const;

    //! Equal in every field.
    bool operator==(const PvSurroundingDescription& other) const;
    //! Differs in some field.
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
