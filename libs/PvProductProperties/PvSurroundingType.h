#pragma once

#include "PvEnumWrapper.h"
#include "pvproductproperties_export.h"

enum PvSurroundingTypeEnum : quint32 {
    PvSurroundingTypeBook = 1,
    PvSurroundingTypeGift = 2,
    PvSurroundingTypeBorder = 4,
    PvSurroundingTypeCalendar = 8,
    PvSurroundingTypeFrame = 16,
    PvSurroundingTypeCollegeblock = 32,
    PvSurroundingTypePhotopaperbook = 64,
    PvSurroundingTypeKids = 128,
    PvSurroundingTypeNotebook = 256,
    PvSurroundingTypeAdventcalendar = 512,
    PvSurroundingTypeTiled = 1024,
    PvSurroundingTypeVariantTemplate = 2048,
    PvSurroundingTypeSlipcase = 4096,
    PvSurroundingTypeFrameCombined = 8192,
    PvSurroundingTypePosterWithCutout = 16384,
    PvSurroundingTypeXmasPendant = 32768,
    PvSurroundingTypeCalendarWithPerforation = 65536,
    PvSurroundingTypeCalendarFineline = 131072,
};

/*! The kind of picture or furniture drawn around a page: binding shade, frame, spiral, ... */
class PVPRODUCTPROPERTIES_EXPORT PvSurroundingType : public PvEnumWrapper<PvSurroundingTypeEnum>
{
public:
    //! The type \a value.
    PvSurroundingType(PvSurroundingTypeEnum value = PvSurroundingTypeEnum(0)) noexcept
        : PvEnumWrapper(value)
    {
    }
    //! The types named in the comma-separated \a text.
    explicit PvSurroundingType(const QString& text);

protected:
    //! Fills the table with the types' names.
    void fillTable(Table* table) const override;
};
