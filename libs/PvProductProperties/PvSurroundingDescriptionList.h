#pragma once

#include "PvSurroundingDescription.h"
#include "pvproductproperties_export.h"

#include <QDomElement>
#include <QList>

class PvProductType;
class PvSurroundingKey;
class PvXMLChildren;

/*! The surroundings of one product in file order; finds the one to draw on a page. */
class PVPRODUCTPROPERTIES_EXPORT PvSurroundingDescriptionList : public QList<PvSurroundingDescription>
{
public:
    PvSurroundingDescriptionList() = default;
    //! Every "surrounding" of every "surroundings" child of \a product, in document order.
    PvSurroundingDescriptionList(const PvProductType& productType, const QDomElement& product);
    //! The same from the listed children of "product".
    PvSurroundingDescriptionList(const PvProductType& productType, const PvXMLChildren& product);

    /*!
     * The first description suitable for \a key. When none is and the key names variants,
     * the search is repeated for the same page without variants. A default description when
     * nothing fits.
     */
    [[nodiscard]] PvSurroundingDescription findDescription(const PvSurroundingKey& key) const;
    //! Whether some description draws a binding shade.
    [[nodiscard]] bool hasSurroundingWithBindingShade() const;
};
