#include "PvXMLAttribute.h"

#include <QDomNamedNodeMap>

std::optional<QString> PvXMLAttribute::value(const QDomElement& element, const QString& name)
{
    // A missing attribute answers the default given, which no attribute's text can share
    // its characters with.
    static const QString missing = QStringLiteral("\u0000missing");
    QString text = element.attribute(name, missing);
    if (text.constData() == missing.constData())
        return std::nullopt;
    return text;
}

PvXMLAttributes::PvXMLAttributes(const QDomElement& element)
    : m_element(element)
    , m_left(element.attributes().count())
{
}

std::optional<QString> PvXMLAttributes::take(const QString& name)
{
    if (m_left == 0)
        return std::nullopt;
    std::optional<QString> text = PvXMLAttribute::value(m_element, name);
    if (text)
        --m_left;
    return text;
}
