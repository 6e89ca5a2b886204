#include "PvFotoBookShape.h"

#include "PvOrientation.h"
#include "PvSpaceMagnitude.h"

#include <QCoreApplication>

PvFotoBookShape::PvFotoBookShape(const QString& text)
{
    setFromText(text);
}

void PvFotoBookShape::fillTable(Table* table) const
{
    table->insertAll({
        { "UNKONWN", PvFotoBookShapeUnknown },
        { "mini", PvFotoBookShapeMini },
        { "tiny", PvFotoBookShapeTiny },
        { "a5-landscape", PvFotoBookShapeA5Landscape },
        { "a5-quadratic", PvFotoBookShapeA5Quadratic },
        { "a4", PvFotoBookShapeA4 },
        { "a4-landscape", PvFotoBookShapeA4Landscape },
        { "quadratic", PvFotoBookShapeQuadratic },
        { "xl", PvFotoBookShapeXl },
        { "xxl", PvFotoBookShapeXxl },
        { "xxl-landscape", PvFotoBookShapeXxlLandscape },
    });
}

namespace {
struct TextRow {
    PvFotoBookShapeEnum shape;
    const char* name;
    const char* size;
};

constexpr TextRow texts[] = {
    { PvFotoBookShapeMini, QT_TRANSLATE_NOOP("PvFotoBookShape", "Mini"), QT_TRANSLATE_NOOP("PvFotoBookShape", "(ca. 15 x 11 cm)") },
    { PvFotoBookShapeTiny, QT_TRANSLATE_NOOP("PvFotoBookShape", "Kids"), QT_TRANSLATE_NOOP("PvFotoBookShape", "(ca. 14 x 14 cm)") },
    { PvFotoBookShapeA5Landscape, QT_TRANSLATE_NOOP("PvFotoBookShape", "Compact Panorama"), QT_TRANSLATE_NOOP("PvFotoBookShape", "(ca. 19 x 15 cm)") },
    { PvFotoBookShapeA5Quadratic, QT_TRANSLATE_NOOP("PvFotoBookShape", "Compact Quadratisch"), QT_TRANSLATE_NOOP("PvFotoBookShape", "(ca. 15 x 15 cm)") },
    { PvFotoBookShapeA4, QT_TRANSLATE_NOOP("PvFotoBookShape", "Groß"), QT_TRANSLATE_NOOP("PvFotoBookShape", "(ca. 21 x 28 cm)") },
    { PvFotoBookShapeA4Landscape, QT_TRANSLATE_NOOP("PvFotoBookShape", "Groß Panorama"), QT_TRANSLATE_NOOP("PvFotoBookShape", "(ca. 28 x 21 cm)") },
    { PvFotoBookShapeQuadratic, QT_TRANSLATE_NOOP("PvFotoBookShape", "Quadratisch"), QT_TRANSLATE_NOOP("PvFotoBookShape", "(ca. 21 x 21 cm)") },
    { PvFotoBookShapeXl, QT_TRANSLATE_NOOP("PvFotoBookShape", "XL"), QT_TRANSLATE_NOOP("PvFotoBookShape", "(ca. 30 x 30 cm)") },
    { PvFotoBookShapeXxl, QT_TRANSLATE_NOOP("PvFotoBookShape", "XXL"), QT_TRANSLATE_NOOP("PvFotoBookShape", "(ca. 28 x 36 cm)") },
    { PvFotoBookShapeXxlLandscape, QT_TRANSLATE_NOOP("PvFotoBookShape", "XXL Panorama"), QT_TRANSLATE_NOOP("PvFotoBookShape", "(ca. 38 x 29 cm)") },
};

QHash<PvFotoBookShapeEnum, QString> translated(const char* TextRow::*column)
{
    QHash<PvFotoBookShapeEnum, QString> hash;
    for (const TextRow& row : texts)
        hash.insert(row.shape, QCoreApplication::translate("PvFotoBookShape", row.*column));
    return hash;
}

PvFotoBookShapeEnum shapeIf(bool condition, PvFotoBookShapeEnum shape)
{
    return condition ? shape : PvFotoBookShapeUnknown;
}
}

PvFotoBookShape PvFotoBookShape::createFromArticleProperties(const PvSpaceMagnitude& magnitude, const PvOrientation& orientation)
{
    switch (magnitude.value()) {
    case PvSpaceMagnitudeMini:
        return PvFotoBookShapeMini;
    case PvSpaceMagnitudeTiny:
        return PvFotoBookShapeTiny;
    case PvSpaceMagnitudeSmall:
        return shapeIf(orientation.isQuadratic(), PvFotoBookShapeA5Quadratic);
    case PvSpaceMagnitudeCompact:
        return shapeIf(orientation.isLandscape(), PvFotoBookShapeA5Landscape);
    case PvSpaceMagnitudeStandard:
        return shapeIf(orientation.isQuadratic(), PvFotoBookShapeQuadratic);
    case PvSpaceMagnitudeLarge:
        if (orientation.isLandscape())
            return PvFotoBookShapeA4Landscape;
        return shapeIf(orientation.isPortrait(), PvFotoBookShapeA4);
    case PvSpaceMagnitudeXl:
        return shapeIf(orientation.isQuadratic(), PvFotoBookShapeXl);
    case PvSpaceMagnitudeXxl:
        if (orientation.isLandscape())
            return PvFotoBookShapeXxlLandscape;
        return shapeIf(orientation.isPortrait(), PvFotoBookShapeXxl);
    default:
        return PvFotoBookShapeUnknown;
    }
}

void PvFotoBookShape::fillTexts() const
{
    // Names and sizes come from the same language, whichever of them is asked first.
    if (!m_names.isEmpty())
        return;
    m_names = translated(&TextRow::name);
    m_sizes = translated(&TextRow::size);
}

QString PvFotoBookShape::sizeDescription() const
{
    fillTexts();
    return m_names.value(m_value);
}

QString PvFotoBookShape::size() const
{
    fillTexts();
    return m_sizes.value(m_value);
}

QString PvFotoBookShape::completeDescription() const
{
    // Translated once per process, unlike the per-object names.
    static const QString prefix = QCoreApplication::translate("PvFotoBookShape", "MIRAL FOTOBUCH");
    return QStringLiteral("%1 %2 %3").arg(prefix, sizeDescription(), size());
}
