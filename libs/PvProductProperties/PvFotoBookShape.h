#pragma once

#include "PvEnumWrapper.h"
#include "pvproductproperties_export.h"

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
    PvFotoBookShape(PvFotoBookShapeEnum value = PvFotoBookShapeEnum(0)) noexcept;
    explicit PvFotoBookShape(const QString& text);

protected:
    void fillTable(Table* table) const override;
};
