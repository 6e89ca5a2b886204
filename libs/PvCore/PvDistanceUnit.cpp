#include "PvDistanceUnit.h"

#include <QCoreApplication>

namespace {
struct UnitRow {
    PvDistanceUnitEnum unit;
    const char* name;
    double millimetres;
};

constexpr UnitRow unitTable[] = {
    { PvTenthMillimetre, QT_TRANSLATE_NOOP("PvDistanceUnit", "1/10 mm"), 0.1 },
    { PvMillimetre, QT_TRANSLATE_NOOP("PvDistanceUnit", "mm"), 1.0 },
    { PvCentimetre, QT_TRANSLATE_NOOP("PvDistanceUnit", "cm"), 10.0 },
    { PvInch, QT_TRANSLATE_NOOP("PvDistanceUnit", "Zoll"), 25.4 },
    { PvPoint, QT_TRANSLATE_NOOP("PvDistanceUnit", "pt"), 25.4 / 72.0 },
};

const UnitRow* rowOf(PvDistanceUnitEnum unit)
{
    for (const UnitRow& row : unitTable) {
        if (row.unit == unit)
            return &row;
    }
    return nullptr;
}
}

QString PvDistanceUnit::humanReadableName() const
{
    const UnitRow* row = rowOf(m_unit);
    return row ? QCoreApplication::translate("PvDistanceUnit", row->name) : QString();
}

double PvDistanceUnit::millimetres() const
{
    const UnitRow* row = rowOf(m_unit);
    return row ? row->millimetres : 0.0;
}
