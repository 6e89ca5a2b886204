#pragma once

#include "PvEnumWrapper.h"
#include "pvproductbase_export.h"

enum PvPageAlignmentEnum : quint32 {
    PvPageAlignmentLeft = 1,
    PvPageAlignmentRight = 2,
    PvPageAlignmentCenter = 4,
    PvPageAlignmentSpread = 8,
    PvPageAlignmentTop = 16,
    PvPageAlignmentBottom = 32,
    PvPageAlignmentMiddle = 64,
};

/*! Where a page lies in its spread, or a set of such places. */
class PVPRODUCTBASE_EXPORT PvPageAlignment : public PvEnumWrapper<PvPageAlignmentEnum>
{
public:
    PvPageAlignment(PvPageAlignmentEnum value = PvPageAlignmentEnum(0)) noexcept
        : PvEnumWrapper(value)
    {
    }
    explicit PvPageAlignment(const QString& text);

protected:
    void fillTable(Table* table) const override;
};
