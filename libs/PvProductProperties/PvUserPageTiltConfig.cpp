#include "PvUserPageTiltConfig.h"

#include "PvXMLParser.h"

#include <QStringList>

PvUserPageTiltConfig::PvUserPageTiltConfig(const QDomElement& element)
{
    if (element.isNull())
        return;
    m_disabled = PvXMLParser::boolAttribute(element, QStringLiteral("disabled"), false);
    m_pages = decodeIntList(PvXMLParser::attribute(element, QStringLiteral("pages")));
}

bool PvUserPageTiltConfig::isPageRotationDisabled(int pageNr) const
{
    if (!m_disabled)
        return false;
    return m_pages.isEmpty() || m_pages.contains(pageNr);
}

QList<int> PvUserPageTiltConfig::decodeIntList(const QString& text) const
{
    return PvXMLParser::intList(text);
}
