#pragma once

#include "PvDistanceUnit.h"
#include "pvcore_export.h"

class QDebug;

/*! A length in a given unit. */
class PVCORE_EXPORT PvDistance
{
public:
    constexpr PvDistance(double value = 0.0, PvDistanceUnit unit = PvDistanceUnit()) noexcept : m_value(value), m_unit(unit) { }

    [[nodiscard]] constexpr double value() const noexcept { return m_value; }
    [[nodiscard]] constexpr PvDistanceUnit unit() const noexcept { return m_unit; }
    [[nodiscard]] PvDistance to(PvDistanceUnit unit) const;

    friend bool operator==(const PvDistance& a, const PvDistance& b) noexcept { return a.m_value == b.m_value && a.m_unit == b.m_unit; }
    friend bool operator!=(const PvDistance& a, const PvDistance& b) noexcept { return !(a == b); }

private:
    double m_value;
    PvDistanceUnit m_unit;
};

PVCORE_EXPORT QDebug operator<<(QDebug debug, const PvDistance& distance);
