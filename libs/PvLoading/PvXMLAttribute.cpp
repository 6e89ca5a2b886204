#include "PvXMLAttribute.h"

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
