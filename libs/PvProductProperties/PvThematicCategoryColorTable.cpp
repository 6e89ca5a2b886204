#include "PvThematicCategoryColorTable.h"

#include "PvXMLParser.h"

#include <QDomNodeList>

namespace {
// Length of "_metallic": metallic variants find their base colour by dropping it.
constexpr int metallicSuffixLength = 9;
}

PvThematicCategoryColorTable::PvThematicCategoryColorTable() = default;

PvThematicCategoryColorTable::PvThematicCategoryColorTable(const QDomElement& root)
{
    const QDomNodeList entries = root.elementsByTagName(QStringLiteral("color"));
    for (int i = 0; i < entries.size(); ++i) {
        const QDomElement entry = entries.at(i).toElement();
        const QString name = PvXMLParser::attribute(entry, QStringLiteral("name"), QString(), false);
        const QString rgb = PvXMLParser::attribute(entry, QStringLiteral("rgb"), QString(), false);
        m_colors.insert(name, QColor::fromString(rgb));
    }
}

QColor PvThematicCategoryColorTable::color(const QString& internalName) const
{
    const QColor exact = m_colors.value(internalName);
    if (exact.isValid())
        return exact;
    if (internalName.size() < metallicSuffixLength + 1)
        return {};
    return m_colors.value(internalName.chopped(metallicSuffixLength));
}

QString PvThematicCategoryColorTable::sortKey(const QColor& colour)
{
    const int hue = colour.hsvHue();
    const int saturation = colour.hsvSaturation();
    const int group = saturation < 40 ? 2 : (hue >= 0 ? 3 : 1);
    const QLatin1Char blank(' ');
    return QStringLiteral("%1%2%3%4")
        .arg(group)
        .arg(qMax(hue, 0), 2, 16, blank)
        .arg(saturation, 2, 16, blank)
        .arg(colour.value(), 2, 16, blank);
}
