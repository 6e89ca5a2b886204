#include "PvCalendarHoleConfig.h"

#include "PvProductDiagnostics.h"

#include "PvXMLParser.h"

#include <tuple>

PvCalendarHoleConfig::PvCalendarHoleConfig() = default;

PvCalendarHoleConfig::PvCalendarHoleConfig(const QDomElement& element)
    : m_diameter(PvXMLParser::intAttribute(element, QStringLiteral("diameter"), 0))
    , m_distanceY(PvXMLParser::intAttribute(element, QStringLiteral("distanceY"), 0))
{
    if (PvProductDiagnostics::listening() && element.hasAttribute(QStringLiteral("diameter")) != element.hasAttribute(QStringLiteral("distanceY")))
        PvProductDiagnostics::report(PvDiagnostic::Error, element, QStringLiteral("a hole needs both \"diameter\" and \"distanceY\"; without either there is no hole"));
}

PvCalendarHoleConfig::PvCalendarHoleConfig(const PvCalendarHoleConfig& other) = default;
PvCalendarHoleConfig::PvCalendarHoleConfig(PvCalendarHoleConfig&& other) noexcept = default;
PvCalendarHoleConfig& PvCalendarHoleConfig::operator=(const PvCalendarHoleConfig& other) = default;
PvCalendarHoleConfig& PvCalendarHoleConfig::operator=(PvCalendarHoleConfig&& other) noexcept = default;
PvCalendarHoleConfig::~PvCalendarHoleConfig() = default;

bool PvCalendarHoleConfig::operator==(const PvCalendarHoleConfig& other) const
{
    return std::tie(m_diameter, m_distanceY) == std::tie(other.m_diameter, other.m_distanceY);
}

bool PvCalendarHoleConfig::operator<(const PvCalendarHoleConfig& other) const
{
    // Deliberately not lexicographic: a larger diameter still falls through to the distance.
    if (m_diameter < other.m_diameter)
        return true;
    return m_distanceY < other.m_distanceY;
}
