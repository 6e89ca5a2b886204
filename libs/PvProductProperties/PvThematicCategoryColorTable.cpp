#include "PvThematicCategoryColorTable.h"

#include "PvProductDiagnostics.h"
#include "PvXMLParser.h"

#include <QDomNodeList>

using PvDiagnostics::quoted;

namespace {
// Length of "_metallic": metallic variants find their base colour by dropping it.
constexpr int metallicSuffixLength = 9;

void report(const QDomElement& element, const QString& message, const QString& attribute = QString())
{
    PvDiagnostics::report(pvCategoriesLog(), PvDiagnostic::Error, element, message, attribute);
}

// Says what the table makes of an entry that does not give a category a colour as written.
void check(const QDomElement& entry, const QString& name, const QColor& colour, const QHash<QString, QDomElement>& seen)
{
    if (name.isEmpty())
        report(entry, QStringLiteral("\"color\" has no \"name\"; the entry is of no category"));
    else if (name != name.trimmed())
        report(entry, QStringLiteral("attribute \"name\": %1 has blanks around it, so it names no category").arg(quoted(name)), QStringLiteral("name"));
    if (!colour.isValid()) {
        const QString rgb = QStringLiteral("rgb");
        report(entry, QStringLiteral("attribute \"rgb\": %1 does not read as a colour; the category has none").arg(quoted(entry.attribute(rgb))),
               entry.hasAttribute(rgb) ? rgb : QString());
    }
    const auto earlier = seen.constFind(name);
    if (!name.isEmpty() && earlier != seen.cend())
        report(entry, QStringLiteral("colour of %1 again; it replaces the one on line %2").arg(quoted(name)).arg(earlier->lineNumber()), QStringLiteral("name"));
}
}

PvThematicCategoryColorTable::PvThematicCategoryColorTable() = default;

PvThematicCategoryColorTable::PvThematicCategoryColorTable(const QDomElement& root)
{
    const QDomNodeList entries = root.elementsByTagName(QStringLiteral("color"));
    const bool listening = PvDiagnostics::isListening(pvCategoriesLog());
    if (listening && entries.isEmpty() && !root.isNull())
        report(root, QStringLiteral("no \"color\" element: no category has a colour"));
    QHash<QString, QDomElement> seen;
    for (int i = 0; i < entries.size(); ++i) {
        const QDomElement entry = entries.at(i).toElement();
        const QString name = PvXMLParser::attribute(entry, QStringLiteral("name"), QString(), false);
        const QString rgb = PvXMLParser::attribute(entry, QStringLiteral("rgb"), QString(), false);
        const QColor colour = QColor::fromString(rgb);
        if (listening) {
            check(entry, name, colour, seen);
            seen.insert(name, entry);
        }
        m_colors.insert(name, colour);
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
