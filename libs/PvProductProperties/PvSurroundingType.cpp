#include "PvSurroundingType.h"

PvSurroundingType::PvSurroundingType(const QString& text)
{
    setFromText(text);
}

void PvSurroundingType::fillTable(Table* table) const
{
    table->insertAll({
        { "BOOK", PvSurroundingTypeBook },
        { "PHOTOPAPERBOOK", PvSurroundingTypePhotopaperbook },
        { "GIFT", PvSurroundingTypeGift },
        { "BORDER", PvSurroundingTypeBorder },
        { "CALENDAR", PvSurroundingTypeCalendar },
        { "FRAME", PvSurroundingTypeFrame },
        { "FRAME_COMBINED", PvSurroundingTypeFrameCombined },
        { "COLLEGEBLOCK", PvSurroundingTypeCollegeblock },
        { "KIDS", PvSurroundingTypeKids },
        { "NOTEBOOK", PvSurroundingTypeNotebook },
        { "ADVENTCALENDAR", PvSurroundingTypeAdventcalendar },
        { "TILED", PvSurroundingTypeTiled },
        { "VARIANT_TEMPLATE", PvSurroundingTypeVariantTemplate },
        { "SLIPCASE", PvSurroundingTypeSlipcase },
        { "POSTER_WITH_CUTOUT", PvSurroundingTypePosterWithCutout },
        { "XMAS_PENDANT", PvSurroundingTypeXmasPendant },
        { "CALENDAR_WITH_PERFORATION", PvSurroundingTypeCalendarWithPerforation },
        { "CALENDAR_FINELINE", PvSurroundingTypeCalendarFineline },
    });
}
