#pragma once

#include "PvEnumWrapper.h"
#include "pvproductproperties_export.h"

#include <QHash>
#include <QString>

class PvOrientation;
class PvSpaceMagnitude;

enum PvFotoBookShapeEnum : quint32 {
    PvFotoBookShapeUnknown = 0,
    PvFotoBookShapeMini = 1,
    PvFotoBookShapeTiny = 2,
    PvFotoBookShapeA5Landscape = 4,
    PvFotoBookShapeA5Quadratic = 8,
    PvFotoBookShapeA4 = 16,
    PvFotoBookShapeA4Landscape = 32,
    PvFotoBookShapeQuadratic = 64,
    PvFotoBookShapeXl = 128,
    PvFotoBookShapeXxl = 256,
    PvFotoBookShapeXxlLandscape = 512,
};

/*! The format of a photo book, as product files and the choosers name it. */
class PVPRODUCTPROPERTIES_EXPORT PvFotoBookShape : public PvEnumWrapper<PvFotoBookShapeEnum>
{
public:
    //! The shape \a value.
    PvFotoBookShape(PvFotoBookShapeEnum value = PvFotoBookShapeEnum(0)) noexcept
        : PvEnumWrapper(value)
    {
    }
    //! The shapes named in the comma-separated \a text.
    explicit PvFotoBookShape(const QString& text);

    //! The shape of a photo book of that size class and orientation; 0 when there is none.
    [[nodiscard]] static PvFotoBookShape createFromArticleProperties(const PvSpaceMagnitude& magnitude, const PvOrientation& orientation);

    //! The translated display name, e.g. "Groß"; empty for 0 and for combinations.
    [[nodiscard]] QString sizeDescription() const;
    //! The translated approximate size, e.g. "(ca. 21 x 28 cm)"; empty for 0 and for combinations.
    [[nodiscard]] QString size() const;
    //! The product name, the display name and the size, joined by single blanks.
    [[nodiscard]] QString completeDescription() const;

protected:
    //! Fills the table with the shapes' names.
    void fillTable(Table* table) const override;

private:
    void fillTexts() const;

    // Both filled together on first use, in the language active then; one thread at a time.
    mutable QHash<PvFotoBookShapeEnum, QString> m_names;
    mutable QHash<PvFotoBookShapeEnum, QString> m_sizes;
};
