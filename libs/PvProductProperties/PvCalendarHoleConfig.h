#pragma once

#include "pvproductproperties_export.h"

#include <QDomElement>

/*! The hanging hole of a wall calendar: its diameter and its distance from the top edge. */
class PVPRODUCTPROPERTIES_EXPORT PvCalendarHoleConfig
{
public:
    //! No hole: both sizes 0.
    PvCalendarHoleConfig();
    //! Reads a "hole" element; missing attributes are 0.
    explicit PvCalendarHoleConfig(const QDomElement& element);
    //! Plain values.
    //! @{
    PvCalendarHoleConfig(const PvCalendarHoleConfig& other);
    PvCalendarHoleConfig(PvCalendarHoleConfig&& other) noexcept;
    PvCalendarHoleConfig& operator=(const PvCalendarHoleConfig& other);
    PvCalendarHoleConfig& operator=(PvCalendarHoleConfig&& other) noexcept;
    virtual ~PvCalendarHoleConfig();
    //! @}

    //! The diameter of the hole ("diameter").
    [[nodiscard]] int diameter() const { return m_diameter; }
    //! The distance of the hole from the top edge ("distanceY").
    [[nodiscard]] int distanceY() const { return m_distanceY; }
    //! Both the diameter and the distance are set.
    [[nodiscard]] bool hasHole() const { return m_diameter != 0 && m_distanceY != 0; }

    //! The same diameter and distance.
    bool operator==(const PvCalendarHoleConfig& other) const;
    //! Differs in diameter or distance.
    bool operator!=(const PvCalendarHoleConfig& other) const { return !(*this == other); }
    //! By diameter, then by distance; a larger diameter does not end the comparison.
    bool operator<(const PvCalendarHoleConfig& other) const;

private:
    int m_diameter = 0;
    int m_distanceY = 0;
};
