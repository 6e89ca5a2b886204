#include "PvCoverType.h"

PvCoverType::PvCoverType(const QString& text)
{
    setFromText(text);
}

void PvCoverType::fillTable(Table* table) const
{
    table->insertAll({
        { "hardcover", PvCoverTypeHardcover },
        { "softcover", PvCoverTypeSoftcover },
        { "layflat", PvCoverTypeLayflat },
        { "leather", PvCoverTypeLeather },
        { "linen", PvCoverTypeLinen },
        { "spiral", PvCoverTypeSpiral },
        { "stapled", PvCoverTypeStapled },
        { "single_sheet", PvCoverTypeSingleSheet },
        { "folded", PvCoverTypeFolded },
        { "wall", PvCoverTypeWall },
        { "box", PvCoverTypeBox },
    });
}

bool PvCoverType::isSimplex() const noexcept
{
    return hasAnyOf(PvCoverTypeSingleSheet | PvCoverTypeFolded | PvCoverTypeWall);
}
