#include "PvDateRangeConstraint.h"

#include "PvXMLParser.h"

#include <limits>

namespace {
// Offsets come from product files unchecked, so the sum is formed wide and out-of-range
// years give a null date instead of an overflow.
QDate firstOfJanuary(int year, int offset)
{
    const qint64 sum = qint64(year) + offset;
    if (sum < std::numeric_limits<int>::min() || sum > std::numeric_limits<int>::max())
        return {};
    return QDate(int(sum), 1, 1);
}
}

PvDateRangeConstraint::PvDateRangeConstraint(const QDomElement& element)
    : m_isEnforced(PvXMLParser::boolAttribute(element, QStringLiteral("isEnforced"), false))
    , m_minimumFromCurrentYear(PvXMLParser::intAttribute(element, QStringLiteral("minimumFromCurrentYear"), 0))
    , m_maximumFromCurrentYear(PvXMLParser::intAttribute(element, QStringLiteral("maximumFromCurrentYear"), 0))
{
}

PvDateRange PvDateRangeConstraint::allowedDateRange() const
{
    return allowedDateRange(QDate::currentDate());
}

PvDateRange PvDateRangeConstraint::allowedDateRange(const QDate& today) const
{
    return { firstOfJanuary(today.year(), m_minimumFromCurrentYear),
             firstOfJanuary(today.year(), m_maximumFromCurrentYear) };
}

QDate PvDateRangeConstraint::maximumAllowedDate(const QDate& date) const
{
    return m_isEnforced ? allowedDateRange().to() : date;
}

QDate PvDateRangeConstraint::minimumAllowedDateSince(const QDate& date) const
{
    return m_isEnforced ? allowedDateRange().from() : date;
}
