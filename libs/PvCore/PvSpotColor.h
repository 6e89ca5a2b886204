#pragma once

#include "pvcore_export.h"

#include <QHashFunctions>

/*! A print finish applied on top of the colours: none, emboss, gold, silver or rose gold. */
class PVCORE_EXPORT PvSpotColor
{
public:
    enum Value { None = 0, Emboss = 1, Gold = 2, Silver = 4, RoseGold = 8 };

    constexpr PvSpotColor(int value = None) noexcept : m_value(value) { }
    [[nodiscard]] constexpr int value() const noexcept { return m_value; }
    friend constexpr bool operator==(PvSpotColor a, PvSpotColor b) noexcept { return a.m_value == b.m_value; }
    friend constexpr bool operator!=(PvSpotColor a, PvSpotColor b) noexcept { return a.m_value != b.m_value; }

private:
    int m_value;
};

inline size_t qHash(PvSpotColor color, size_t seed = 0) noexcept
{
    return qHash(color.value(), seed);
}
