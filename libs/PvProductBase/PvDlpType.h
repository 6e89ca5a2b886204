#pragma once

#include "PvEnumWrapper.h"
#include "pvproductbase_export.h"

enum PvDlpTypeEnum : quint32 {
    PvDlpTypeBackground = 1,
    PvDlpTypeStyles = 2,
    PvDlpTypeContent = 4,
    PvDlpTypeClipart = 8,
    PvDlpTypeMask = 16,
    PvDlpTypeLayout = 32,
    PvDlpTypeStorybook = 64,
    PvDlpTypeFont = 1024,
    PvDlpTypeTextstyle = 2048,
};

/*! The type of a download package of design content. */
class PVPRODUCTBASE_EXPORT PvDlpType : public PvEnumWrapper<PvDlpTypeEnum>
{
public:
    PvDlpType(PvDlpTypeEnum value = PvDlpTypeEnum(0)) noexcept
        : PvEnumWrapper(value)
    {
    }
    explicit PvDlpType(const QString& text);

protected:
    void fillTable(Table* table) const override;
};
