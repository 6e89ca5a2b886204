#pragma once

#include "PvEnumWrapper.h"
#include "pvproductbase_export.h"

enum PvSpaceMagnitudeEnum : quint32 {
    PvSpaceMagnitudeMicro = 1,
    PvSpaceMagnitudeMini = 2,
    PvSpaceMagnitudeTiny = 4,
    PvSpaceMagnitudeSmall = 8,
    PvSpaceMagnitudeCompact = 16,
    PvSpaceMagnitudeMedium = 32,
    PvSpaceMagnitudeStandard = 64,
    PvSpaceMagnitudeLarge = 128,
    PvSpaceMagnitudeXl = 256,
    PvSpaceMagnitudeXxl = 512,
};

/*! The size class of an article. */
class PVPRODUCTBASE_EXPORT PvSpaceMagnitude : public PvEnumWrapper<PvSpaceMagnitudeEnum>
{
public:
    PvSpaceMagnitude(PvSpaceMagnitudeEnum value = PvSpaceMagnitudeEnum(0)) noexcept
        : PvEnumWrapper(value)
    {
    }
    explicit PvSpaceMagnitude(const QString& text);

protected:
    void fillTable(Table* table) const override;
};
