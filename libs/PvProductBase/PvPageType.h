#pragma once

#include "PvEnumWrapper.h"
#include "pvproductbase_export.h"

enum PvPageTypeEnum : quint32 {
    PvPageTypeSpine = 0x1,
    PvPageTypeLeft = 0x2,
    PvPageTypeRight = 0x4,
    PvPageTypePage = 0x8,
    PvPageTypeFlyleaf = 0x10,
    PvPageTypeCoverBack = 0x20,
    PvPageTypeCover = 0x40,
    PvPageTypeCoverFront = 0x80,
    PvPageTypeCoverInsideFront = 0x100,
    PvPageTypeCoverInsideBack = 0x200,
    PvPageTypeMonth = 0x400,
    PvPageTypeRun = 0x800,
    PvPageTypeRunRightLeft = 0x1000,
    PvPageTypeRunPairs = 0x2000,
    PvPageTypeRunLeftRight = 0x4000,
    PvPageTypeRunYear = 0x8000,
    PvPageTypeJacketFlapRight = 0x10000,
    PvPageTypeJacketBack = 0x20000,
    PvPageTypeJacketFront = 0x40000,
    PvPageTypeJacketFlapLeft = 0x80000,
    PvPageTypeJacket = 0x100000,
    PvPageTypePanorama = 0x200000,
    PvPageTypeOpening = 0x400000,
    PvPageTypePageLeft = 0xA,
    PvPageTypePageRight = 0xC,
    PvPageTypeMonthPage = 0x408,
    PvPageTypePanoramaPage = 0x200008,
    PvPageTypeOpeningPage = 0x400008,
    PvPageTypeAll = 0xF03F9,
};

/*! The type of a page of a product, or a set of page types; written by the names of product files, e.g. "cover_back,spine,cover_front,run". */
class PVPRODUCTBASE_EXPORT PvPageType : public PvEnumWrapper<PvPageTypeEnum>
{
public:
    PvPageType(PvPageTypeEnum value = PvPageTypeEnum(0)) noexcept
        : PvEnumWrapper(value)
    {
    }
    explicit PvPageType(const QString& text);

protected:
    void fillTable(Table* table) const override;
};
