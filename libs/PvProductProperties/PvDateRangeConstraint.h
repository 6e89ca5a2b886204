#pragma once

#include "PvDateRange.h"
#include "pvproductproperties_export.h"

#include <QDate>
#include <QDomElement>

/*!
 * The years from which a dated product (a calendar, say) may start, counted from the current
 * year. The current date is read from the clock at each call; the overload of
 * allowedDateRange() that takes today's date is the one place where it enters.
 */
class PVPRODUCTPROPERTIES_EXPORT PvDateRangeConstraint
{
public:
    PvDateRangeConstraint() = default;
    //! Reads a "dateRangeConstraint" element: "isEnforced", "minimumFromCurrentYear", "maximumFromCurrentYear".
    explicit PvDateRangeConstraint(const QDomElement& element);
    //! Plain values.
    //! @{
    PvDateRangeConstraint(const PvDateRangeConstraint&) = default;
    PvDateRangeConstraint(PvDateRangeConstraint&&) noexcept = default;
    PvDateRangeConstraint& operator=(const PvDateRangeConstraint&) = default;
    PvDateRangeConstraint& operator=(PvDateRangeConstraint&&) noexcept = default;
    virtual ~PvDateRangeConstraint() = default;
    //! @}

    //! Whether the editor holds dates to the range ("isEnforced", default false).
    [[nodiscard]] bool enforce() const { return m_isEnforced; }
    //! The first allowed year, counted from the current one.
    [[nodiscard]] int minimumFromCurrentYear() const { return m_minimumFromCurrentYear; }
    //! The last allowed year, counted from the current one.
    [[nodiscard]] int maximumFromCurrentYear() const { return m_maximumFromCurrentYear; }

    /*!
     * From 1 January of the current year plus the minimum to 1 January of the current year
     * plus the maximum, both included. An end whose year QDate cannot hold is a null date.
     */
    [[nodiscard]] PvDateRange allowedDateRange() const;
    //! The same range for the day \a today instead of the clock's.
    [[nodiscard]] PvDateRange allowedDateRange(const QDate& today) const;
    //! \a date itself when not enforced, else the upper end of allowedDateRange().
    [[nodiscard]] QDate maximumAllowedDate(const QDate& date) const;
    //! \a date itself when not enforced, else the lower end of allowedDateRange().
    [[nodiscard]] QDate minimumAllowedDateSince(const QDate& date) const;

private:
    bool m_isEnforced = false;
    int m_minimumFromCurrentYear = 0;
    int m_maximumFromCurrentYear = 0;
};
