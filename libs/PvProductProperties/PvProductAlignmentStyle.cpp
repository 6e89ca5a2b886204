#include "PvProductAlignmentStyle.h"

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

void PvProductAlignmentStyle::expandToKeyword(const QString& text)
{
    *this |= PvProductAlignmentStyle(text);
}

bool PvProductAlignmentStyle::hasOnlySinglePages() const
{
    switch (m_value) {
    case PvProductAlignmentStyleCard:
    case PvProductAlignmentStyleCollegeblock:
    case PvProductAlignmentStyleFotoAdventCalendar:
        return true;
    default:
        return false;
    }
}
