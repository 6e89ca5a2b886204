#pragma once

#include "pvcore_export.h"

#include <QString>

enum PvDistanceUnitEnum {
    PvTenthMillimetre = 1, // the unit of page descriptions
    PvMillimetre = 2,
    PvCentimetre = 3,
    PvInch = 4,
    PvPoint = 5,
};

/*! A unit of length, with its translated name. */
class PVCORE_EXPORT PvDistanceUnit
{
public:
    constexpr PvDistanceUnit(PvDistanceUnitEnum unit = PvTenthMillimetre) noexcept : m_unit(unit) { }

    [[nodiscard]] constexpr PvDistanceUnitEnum value() const noexcept { return m_unit; }
    [[nodiscard]] QString humanReadableName() const;
    //! How many millimetres one of this unit is.
    [[nodiscard]] double millimetres() const;

    friend constexpr bool operator==(PvDistanceUnit a, PvDistanceUnit b) noexcept { return a.m_unit == b.m_unit; }
    friend constexpr bool operator!=(PvDistanceUnit a, PvDistanceUnit b) noexcept { return a.m_unit != b.m_unit; }

private:
    PvDistanceUnitEnum m_unit;
};
