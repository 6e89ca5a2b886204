#pragma once

#include "PvEnumWrapper.h"
#include "pvproductbase_export.h"

enum PvFotoPaperTypeEnum : quint32 {
    PvFotoPaperTypeNone = 0,
    PvFotoPaperTypeGlossy = 1,
    PvFotoPaperTypeMatt = 2,
    PvFotoPaperTypeSilk = 4,
    PvFotoPaperTypePearl = 8,
};

/*! The photo paper of an article class. */
class PVPRODUCTBASE_EXPORT PvFotoPaperType : public PvEnumWrapper<PvFotoPaperTypeEnum>
{
public:
    PvFotoPaperType(PvFotoPaperTypeEnum value = PvFotoPaperTypeEnum(0)) noexcept
        : PvEnumWrapper(value)
    {
    }
    explicit PvFotoPaperType(const QString& text);

protected:
    void fillTable(Table* table) const override;
};
