#include "PvProductClassificationGroup.h"

#include <QCoreApplication>

namespace {
const char translationContext[] = "PvProductClassificationGroup";

const PvLookUpTable<QString, QString>& descriptions()
{
    // Filled inside the static initialisation, so concurrent first calls cannot race.
    static const PvLookUpTable<QString, QString> table = [] {
        PvLookUpTable<QString, QString> filled;
        PvProductClassificationGroup::initDescriptions(&filled);
        return filled;
    }();
    return table;
}
}

PvProductClassificationGroup::PvProductClassificationGroup() = default;

PvProductClassificationGroup::PvProductClassificationGroup(const QString& value)
    : m_value(value)
{
}

PvProductClassificationGroup::PvProductClassificationGroup(const PvProductClassificationGroup& other) = default;
PvProductClassificationGroup::PvProductClassificationGroup(PvProductClassificationGroup&& other) noexcept = default;
PvProductClassificationGroup& PvProductClassificationGroup::operator=(const PvProductClassificationGroup& other) = default;
PvProductClassificationGroup& PvProductClassificationGroup::operator=(PvProductClassificationGroup&& other) noexcept = default;
PvProductClassificationGroup::~PvProductClassificationGroup() = default;

QString PvProductClassificationGroup::visibleDescription() const
{
    const QString source = descriptions().value(m_value);
    if (source.isEmpty())
        return QString();
    return QCoreApplication::translate(translationContext, source.toUtf8().constData());
}

bool PvProductClassificationGroup::canCustomFormat(const QString& name) const
{
    return customFormatProductWhiteList().contains(name.isEmpty() ? m_value : name);
}

const QSet<QString>& PvProductClassificationGroup::customFormatProductWhiteList()
{
    static const QSet<QString> whiteList = {
        QStringLiteral("Foto auf Alu-Dibond"),
        QStringLiteral("Foto auf Alu-Dibond digital"),
        QStringLiteral("Poster hinter Acryl-Glas"),
        QStringLiteral("Poster hinter Acryl-Glas digital"),
        QStringLiteral("Foto auf Hartschaumplatte digital"),
        QStringLiteral("Gallery Print digital"),
    };
    return whiteList;
}

void PvProductClassificationGroup::initDescriptions(PvLookUpTable<QString, QString>* table)
{
    if (!table)
        return;
    static const struct {
        const char* group;
        const char* text;
    } rows[] = {
        { "Poster", QT_TRANSLATE_NOOP("PvProductClassificationGroup", "Poster") },
        { "Deko-Poster", QT_TRANSLATE_NOOP("PvProductClassificationGroup", "Poster") },
        { "Leinwand", QT_TRANSLATE_NOOP("PvProductClassificationGroup", "Fotoleinwand") },
        { "Foto auf Alu-Dibond", QT_TRANSLATE_NOOP("PvProductClassificationGroup", "Foto auf Alu-Dibond") },
        { "Poster hinter Acryl-Glas", QT_TRANSLATE_NOOP("PvProductClassificationGroup", "Foto hinter Acrylglas") },
        { "Foto auf Alu-Dibond digital", QT_TRANSLATE_NOOP("PvProductClassificationGroup", "Foto auf Alu-Dibond (Direktdruck)") },
        { "Poster hinter Acryl-Glas digital", QT_TRANSLATE_NOOP("PvProductClassificationGroup", "Foto hinter Acrylglas (Direktdruck)") },
        { "Premium Poster digital", QT_TRANSLATE_NOOP("PvProductClassificationGroup", "Premium Poster Digitaldruck Matt") },
        { "Foto auf Hartschaumplatte digital", QT_TRANSLATE_NOOP("PvProductClassificationGroup", "Foto auf Hartschaum (Direktdruck)") },
        { "Gallery Print digital", QT_TRANSLATE_NOOP("PvProductClassificationGroup", "Foto als Gallery Print") },
        { "Premium Poster (glossy)", QT_TRANSLATE_NOOP("PvProductClassificationGroup", "Premium Poster Fotopapier Glänzend") },
        { "Premium Poster (matt recycelt)", QT_TRANSLATE_NOOP("PvProductClassificationGroup", "Premium Poster Digitaldruck Matt (100% recycelt)") },
        { "Premium Poster (matt)", QT_TRANSLATE_NOOP("PvProductClassificationGroup", "Premium Poster Fotopapier Matt") },
        { "Premium Poster (silk)", QT_TRANSLATE_NOOP("PvProductClassificationGroup", "Premium Poster Fotopapier Seidenraster") },
        { "Premium Poster (pearl)", QT_TRANSLATE_NOOP("PvProductClassificationGroup", "Premium Poster Fotopapier Perlmutt") },
        { "Premium Poster (fine art matt)", QT_TRANSLATE_NOOP("PvProductClassificationGroup", "Premium Poster Digitaldruck Fine Art Matt") },
        { "PGAP", QT_TRANSLATE_NOOP("PvProductClassificationGroup", "Fotoleiste als Gallery Print (Direktdruck)") },
        { "PADP", QT_TRANSLATE_NOOP("PvProductClassificationGroup", "Fotoleiste auf Alu-Dibond (Direktdruck)") },
        { "PAGP", QT_TRANSLATE_NOOP("PvProductClassificationGroup", "Fotoleiste hinter Acrylglas (Direktdruck)") },
        { "PFSP", QT_TRANSLATE_NOOP("PvProductClassificationGroup", "Fotoleiste auf Hartschaum (Direktdruck)") },
        { "DFAM", QT_TRANSLATE_NOOP("PvProductClassificationGroup", "Fine Art Print") },
        { "PWP", QT_TRANSLATE_NOOP("PvProductClassificationGroup", "Foto auf Holz (Direktdruck)") },
        { "PF", QT_TRANSLATE_NOOP("PvProductClassificationGroup", "Foto im Rahmen") },
        { "MLP", QT_TRANSLATE_NOOP("PvProductClassificationGroup", "Photo Streetmap Poster") },
    };
    for (const auto& row : rows)
        table->insert(QString::fromUtf8(row.group), QString::fromUtf8(row.text));
}
