#pragma once

#include "PvDistanceUnit.h"
#include "PvProductClassificationGroup.h"
#include "PvProductType.h"
#include "pvproductproperties_export.h"

#include <QDomElement>
#include <QSharedDataPointer>
#include <QSize>
#include <QString>

class PvProductClassificationData;
class PvXMLChildren;

/*!
 * Where a wall decor product sits in the choosers: its material group and its size, named
 * in centimetres and in inches, read from the product's "classification" child.
 */
class PVPRODUCTPROPERTIES_EXPORT PvProductClassification
{
public:
    PvProductClassification();
    //! Reads the "product" element \a product and its first child "classification".
    explicit PvProductClassification(const QDomElement& product);
    //! The same from the listed children of "product".
    explicit PvProductClassification(const PvXMLChildren& product);
    //! Plain values.
    //! @{
    PvProductClassification(const PvProductClassification& other);
    PvProductClassification(PvProductClassification&& other) noexcept;
    PvProductClassification& operator=(const PvProductClassification& other);
    PvProductClassification& operator=(PvProductClassification&& other) noexcept;
    virtual ~PvProductClassification();
    //! @}

    //! Whether the product type is set.
    [[nodiscard]] bool isValid() const { return m_productType.isValid(); }
    //! The material group ("group").
    [[nodiscard]] PvProductClassificationGroup group() const;
    //! The product type classified.
    [[nodiscard]] PvProductType productType() const { return m_productType; }

    //! The inch size name for inches, the centimetre size name for every other unit.
    [[nodiscard]] QString sizeName(const PvDistanceUnit& unit) const;
    //! The size name in \a unit, as the choosers show it; the same as sizeName().
    [[nodiscard]] QString visibleName(const PvDistanceUnit& unit) const;
    //! The size name followed by the unit's name, such as "30x40 cm".
    [[nodiscard]] QString sizeNameWithUnit(const PvDistanceUnit& unit) const;
    //! Width and height in inches for inches, in centimetres for every other unit.
    [[nodiscard]] QSize dimensions(PvDistanceUnit unit) const;
    //! Square centimetres.
    [[nodiscard]] qint64 areaSize() const;
    //! The diagonal in centimetres.
    [[nodiscard]] double sizeDiagonal() const;

    /*!
     * Derives both sizes from the size names ("30x40", "X" too). The inch name is read only
     * when the centimetre name gives a size.
     */
    void calculateSize();

private:
    // Only wall decor has a classification; every other product shares one empty copy.
    QSharedDataPointer<PvProductClassificationData> d;
    PvProductType m_productType;
};
