#include "PvFotoBookShape.h"

PvFotoBookShape::PvFotoBookShape(PvFotoBookShapeEnum value) noexcept
    : PvEnumWrapper(value)
{
}

PvFotoBookShape::PvFotoBookShape(const QString& text)
{
    setFromText(text);
}

void PvFotoBookShape::fillTable(Table* table) const
{
    table->insertAll({
        { "UNKONWN", PvFotoBookShapeUnknown },
        { "mini", PvFotoBookShapeMini },
        { "tiny", PvFotoBookShapeTiny },
        { "a5-landscape", PvFotoBookShapeA5Landscape },
        { "a5-quadratic", PvFotoBookShapeA5Quadratic },
        { "a4", PvFotoBookShapeA4 },
        { "a4-landscape", PvFotoBookShapeA4Landscape },
        { "quadratic", PvFotoBookShapeQuadratic },
        { "xl", PvFotoBookShapeXl },
        { "xxl", PvFotoBookShapeXxl },
        { "xxl-landscape", PvFotoBookShapeXxlLandscape },
    });
}
