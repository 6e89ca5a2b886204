#include "PvProductClassification.h"

#include "PvProductDiagnostics.h"

#include "PvValuePool.h"
#include "PvXMLChildren.h"
#include "PvXMLParser.h"

#include <cmath>
#include <optional>

#include <QStringList>

namespace {
std::optional<QSize> sizeFromName(const QString& name)
{
    const QStringList parts = name.split(QLatin1Char('x'), Qt::SkipEmptyParts, Qt::CaseInsensitive);
    if (parts.size() != 2)
        return std::nullopt;
    return QSize(parts.constFirst().trimmed().toInt(nullptr, 10), parts.constLast().trimmed().toInt(nullptr, 10));
}

// Sizes that do not read and groups that do not survive the Latin-1 repair.
void reportMistakes(const QDomElement& classification)
{
    const QString group = classification.attribute(QStringLiteral("group"));
    const QString repaired = QString::fromUtf8(group.toLatin1());
    if (group != repaired)
        PvProductDiagnostics::report(PvDiagnostic::Error, classification,
                                     QStringLiteral("attribute \"group\": %1 is not plain ASCII and is read as %2").arg(PvDiagnostics::quoted(group), PvDiagnostics::quoted(repaired)),
                                     QStringLiteral("group"));
    for (const char* unit : { "cm", "inch" }) {
        const QString name = classification.attribute(QLatin1String(unit));
        if (!name.isEmpty() && !sizeFromName(name))
            PvProductDiagnostics::report(PvDiagnostic::Error, classification,
                                         QStringLiteral("attribute %1: %2 is not a size written WxH; the product has no size").arg(PvDiagnostics::quoted(QLatin1String(unit)), PvDiagnostics::quoted(name)),
                                         QLatin1String(unit));
    }
}

bool isInch(const PvDistanceUnit& unit)
{
    return unit.value() == PvInch;
}
}

PvProductClassification::PvProductClassification() = default;

PvProductClassification::PvProductClassification(const QDomElement& product)
    : PvProductClassification(PvXMLChildren(product))
{
}

// Trimmed like the description's own product type, so that both name the same product.
PvProductClassification::PvProductClassification(const PvXMLChildren& product)
    : m_productType(PvXMLParser::attribute(product.parent(), QStringLiteral("name"), QString(), true))
{
    const QDomElement classification = product.first(u"classification");
    m_cmName = PvValuePool::shared(PvXMLParser::attribute(classification, QStringLiteral("cm")));
    m_inchName = PvValuePool::shared(PvXMLParser::attribute(classification, QStringLiteral("inch")));
    // Older product files were written in UTF-8 but read as Latin-1; going back to the bytes
    // repairs them. A correct value outside ASCII does not survive this, and never did.
    m_group = PvProductClassificationGroup(PvValuePool::shared(QString::fromUtf8(PvXMLParser::attribute(classification, QStringLiteral("group")).toLatin1())));
    calculateSize();
    if (PvProductDiagnostics::listening())
        reportMistakes(classification);
}

PvProductClassification::PvProductClassification(const PvProductClassification& other) = default;
PvProductClassification::PvProductClassification(PvProductClassification&& other) noexcept = default;
PvProductClassification& PvProductClassification::operator=(const PvProductClassification& other) = default;
PvProductClassification& PvProductClassification::operator=(PvProductClassification&& other) noexcept = default;
PvProductClassification::~PvProductClassification() = default;

QString PvProductClassification::sizeName(const PvDistanceUnit& unit) const
{
    return isInch(unit) ? m_inchName : m_cmName;
}

QString PvProductClassification::visibleName(const PvDistanceUnit& unit) const
{
    return sizeName(unit);
}

QString PvProductClassification::sizeNameWithUnit(const PvDistanceUnit& unit) const
{
    return QStringLiteral("%1 %2").arg(sizeName(unit), unit.humanReadableName());
}

QSize PvProductClassification::dimensions(PvDistanceUnit unit) const
{
    return isInch(unit) ? QSize(m_inchWidth, m_inchHeight) : QSize(m_cmWidth, m_cmHeight);
}

qint64 PvProductClassification::areaSize() const
{
    return qint64(m_cmWidth) * m_cmHeight;
}

double PvProductClassification::sizeDiagonal() const
{
    const double width = m_cmWidth;
    const double height = m_cmHeight;
    return std::sqrt(width * width + height * height);
}

void PvProductClassification::calculateSize()
{
    const std::optional<QSize> cm = sizeFromName(m_cmName);
    if (!cm)
        return;
    m_cmWidth = cm->width();
    m_cmHeight = cm->height();
    if (const std::optional<QSize> inch = sizeFromName(m_inchName)) {
        m_inchWidth = inch->width();
        m_inchHeight = inch->height();
    }
}
