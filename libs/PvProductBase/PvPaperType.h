#pragma once

#include "PvEnumWrapper.h"
#include "pvproductbase_export.h"

enum PvPaperTypeEnum : quint32 {
    PvPaperTypeDigitalMatt = 1,
    PvPaperTypeDigitalGlossy = 2,
    PvPaperTypeOffsetMatt = 4,
    PvPaperTypeOffsetGlossy = 8,
    PvPaperTypePhotoMatt = 16,
    PvPaperTypePhotoGlossy = 32,
    PvPaperTypePremiumDigitalMatt = 64,
    PvPaperTypePremiumDigitalGlossy = 128,
};

/*! The paper and print process of a product. */
class PVPRODUCTBASE_EXPORT PvPaperType : public PvEnumWrapper<PvPaperTypeEnum>
{
public:
    PvPaperType(PvPaperTypeEnum value = PvPaperTypeEnum(0)) noexcept
        : PvEnumWrapper(value)
    {
    }
    explicit PvPaperType(const QString& text);
    //! The German display name of a single value, translated; empty for 0 and for combinations.
    [[nodiscard]] QString humanReadableName() const;

protected:
    void fillTable(Table* table) const override;
};
