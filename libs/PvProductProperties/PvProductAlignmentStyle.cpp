#include "PvProductAlignmentStyle.h"

PvProductAlignmentStyle::PvProductAlignmentStyle(PvProductAlignmentStyleEnum value) noexcept
    : PvEnumWrapper(value)
{
}

PvProductAlignmentStyle::PvProductAlignmentStyle(const QString& text)
{
    setFromText(text);
}

void PvProductAlignmentStyle::fillTable(Table* table) const
{
    table->insertAll({
        { "normal", PvProductAlignmentStyleNormal },
        { "card", PvProductAlignmentStyleCard },
        { "vario_card", PvProductAlignmentStyleVarioCard },
        { "collegeblock", PvProductAlignmentStyleCollegeblock },
        { "foto_advent_calendar", PvProductAlignmentStyleFotoAdventCalendar },
    });
}
