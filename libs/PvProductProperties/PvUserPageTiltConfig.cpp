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
    QList<int> numbers;
    const QStringList parts = text.simplified().split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString& part : parts) {
        bool ok = false;
        const int number = part.toInt(&ok, 10);
        if (ok)
            numbers.append(number);
    }
    return numbers;
}
