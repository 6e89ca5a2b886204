#pragma once

#include "PvEnumWrapper.h"
#include "pvproductproperties_export.h"

enum PvJigTypeEnum : quint32 {
    PvJigTypeUnknown = 0,
    PvJigTypeBackground = 1,
    PvJigTypeClipart = 2,
    PvJigTypeContent = 4,
    PvJigTypeLayout = 8,
    PvJigTypePassepartout = 16,
    PvJigTypeFrame = 128,
    PvJigTypeFramePassepartout = 256,
    PvJigTypeFrameGlas = 512,
    PvJigTypeWallholder = 1024,
    PvJigTypeStylesV2 = 2048,
    PvJigTypeStorybook = 4096,
    PvJigTypeVariantTemplate = 8192,
};

/*! A kind of design element the editor places on pages: backgrounds, cliparts, layouts, masks, frames, ... */
class PVPRODUCTPROPERTIES_EXPORT PvJigType : public PvEnumWrapper<PvJigTypeEnum>
{
public:
    PvJigType(PvJigTypeEnum value = PvJigTypeEnum(0)) noexcept;
    explicit PvJigType(const QString& text);

protected:
    void fillTable(Table* table) const override;
};
