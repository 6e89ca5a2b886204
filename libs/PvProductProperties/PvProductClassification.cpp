#include "PvProductClassification.h"

#include "PvProductDiagnostics.h"

#include "PvBlockPool.h"
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

class PvProductClassificationData : public QSharedData, public PvBlockPoolAllocated
{
public:
    // Reads the "classification" element \a classification; a null one gives the empty data.
    static QSharedDataPointer<PvProductClassificationData> read(const QDomElement& classification);
    void calculateSize();

    PvProductClassificationGroup group;
    QString cmName;
    QString inchName;
    int cmWidth = 0;
    int cmHeight = 0;
    int inchWidth = -1;
    int inchHeight = -1;
};

QSharedDataPointer<PvProductClassificationData> PvProductClassificationData::read(const QDomElement& classification)
{
    const auto readFrom = [](const QDomElement& element) {
        QSharedDataPointer<PvProductClassificationData> data(new PvProductClassificationData);
        data->cmName = PvValuePool::shared(PvXMLParser::attribute(element, QStringLiteral("cm")));
        data->inchName = PvValuePool::shared(PvXMLParser::attribute(element, QStringLiteral("inch")));
        // Older product files were written in UTF-8 but read as Latin-1; going back to the
        // bytes repairs them. A correct value outside ASCII does not survive this, and never did.
        data->group = PvProductClassificationGroup(PvValuePool::shared(QString::fromUtf8(PvXMLParser::attribute(element, QStringLiteral("group")).toLatin1())));
        data->calculateSize();
        return data;
    };
    if (!classification.isNull())
        return readFrom(classification);
    // Read from no element like any other, so that it holds exactly what that gives.
    static const QSharedDataPointer<PvProductClassificationData> none = readFrom(QDomElement());
    return none;
}

void PvProductClassificationData::calculateSize()
{
    const std::optional<QSize> cm = sizeFromName(cmName);
    if (!cm)
        return;
    cmWidth = cm->width();
    cmHeight = cm->height();
    if (const std::optional<QSize> inch = sizeFromName(inchName)) {
        inchWidth = inch->width();
        inchHeight = inch->height();
    }
}

PvProductClassification::PvProductClassification()
    : d(PvProductClassificationData::read(QDomElement()))
{
}

PvProductClassification::PvProductClassification(const QDomElement& product)
    : PvProductClassification(PvXMLChildren(product))
{
}

// Trimmed like the description's own product type, so that both name the same product.
PvProductClassification::PvProductClassification(const PvXMLChildren& product)
    : m_productType(PvXMLParser::attribute(product.parent(), QStringLiteral("name"), QString(), true))
{
    const QDomElement classification = product.first(u"classification");
    d = PvProductClassificationData::read(classification);
    if (PvProductDiagnostics::listening())
        reportMistakes(classification);
}

PvProductClassification::PvProductClassification(const PvProductClassification& other) = default;
PvProductClassification::PvProductClassification(PvProductClassification&& other) noexcept = default;
PvProductClassification& PvProductClassification::operator=(const PvProductClassification& other) = default;
PvProductClassification& PvProductClassification::operator=(PvProductClassification&& other) noexcept = default;
PvProductClassification::~PvProductClassification() = default;

PvProductClassificationGroup PvProductClassification::group() const
{
    return d->group;
}

QString PvProductClassification::sizeName(const PvDistanceUnit& unit) const
{
    return isInch(unit) ? d->inchName : d->cmName;
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
    return isInch(unit) ? QSize(d->inchWidth, d->inchHeight) : QSize(d->cmWidth, d->cmHeight);
}

qint64 PvProductClassification::areaSize() const
{
    return qint64(d->cmWidth) * d->cmHeight;
}

double PvProductClassification::sizeDiagonal() const
{
    const double width = d->cmWidth;
    const double height = d->cmHeight;
    return std::sqrt(width * width + height * height);
}

void PvProductClassification::calculateSize()
{
    d->calculateSize();
}
