#pragma once

#include "PvEnumWrapper.h"
#include "pvproductbase_export.h"

enum PvCoverTypeEnum : quint32 {
    PvCoverTypeHardcover = 1,
    PvCoverTypeSoftcover = 2,
    PvCoverTypeLayflat = 4,
    PvCoverTypeLeather = 8,
    PvCoverTypeLinen = 16,
    PvCoverTypeSpiral = 32,
    PvCoverTypeStapled = 64,
    PvCoverTypeSingleSheet = 128,
    PvCoverTypeFolded = 256,
    PvCoverTypeWall = 512,
    PvCoverTypeBox = 1024,
};

/*! The binding or cover kind of a product. */
class PVPRODUCTBASE_EXPORT PvCoverType : public PvEnumWrapper<PvCoverTypeEnum>
{
public:
    PvCoverType(PvCoverTypeEnum value = PvCoverTypeEnum(0)) noexcept
        : PvEnumWrapper(value)
    {
    }
    explicit PvCoverType(const QString& text);
    //! Printed on single sheets: single sheet, folded or wall products.
    [[nodiscard]] bool isSimplex() const noexcept;

protected:
    void fillTable(Table* table) const override;
};
