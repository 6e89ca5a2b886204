#pragma once

#include "pvcore_export.h"

#include <QDate>

/*! A range of days, both ends included. */
class PVCORE_EXPORT PvDateRange
{
public:
    PvDateRange() = default;
    PvDateRange(const QDate& from, const QDate& to) : m_from(from), m_to(to) { }

    [[nodiscard]] QDate from() const { return m_from; }
    [[nodiscard]] QDate to() const { return m_to; }
    [[nodiscard]] bool contains(const QDate& date) const { return date >= m_from && date <= m_to; }

    friend bool operator==(const PvDateRange& a, const PvDateRange& b) { return a.m_from == b.m_from && a.m_to == b.m_to; }
    friend bool operator!=(const PvDateRange& a, const PvDateRange& b) { return !(a == b); }

private:
    QDate m_from;
    QDate m_to;
};
