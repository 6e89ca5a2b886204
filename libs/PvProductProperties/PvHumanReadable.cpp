#include "PvHumanReadable.h"

#include <iterator>

namespace {
struct TemplateText
{
    const char* name;
    const char* text;
};

// Older model families are keyed by their German display text (with "ue" for "ü"); newer
// ones by lower-case identifiers.
constexpr TemplateText templateTexts[] = {
    { "canvas_without_frame", QT_TRANSLATE_NOOP("PvHumanReadable", "Leinwand Ohne Rahmen") },
    { "Poster Ohne Rahmen", QT_TRANSLATE_NOOP("PvHumanReadable", "Poster Ohne Rahmen") },
    { "plastic_black", QT_TRANSLATE_NOOP("PvHumanReadable", "Kunststoff Schwarz") },
    { "plastic_white", QT_TRANSLATE_NOOP("PvHumanReadable", "Kunststoff Weiß") },
    { "passepartout_white", QT_TRANSLATE_NOOP("PvHumanReadable", "Weiß") },
    { "passepartout_black", QT_TRANSLATE_NOOP("PvHumanReadable", "Schwarz") },
    { "passepartout_gray", QT_TRANSLATE_NOOP("PvHumanReadable", "Grau") },
    { "passepartout_cream", QT_TRANSLATE_NOOP("PvHumanReadable", "Cremeweiß") },
    { "premiumposter_glas", QT_TRANSLATE_NOOP("PvHumanReadable", "Glas") },
    { "premiumposter_laminated", QT_TRANSLATE_NOOP("PvHumanReadable", "Kaschierung") },
    { "Landhaus Creme", QT_TRANSLATE_NOOP("PvHumanReadable", "Landhaus Creme") },
    { "Landhaus Rot", QT_TRANSLATE_NOOP("PvHumanReadable", "Landhaus Rot") },
    { "Landhaus Blau", QT_TRANSLATE_NOOP("PvHumanReadable", "Landhaus Blau") },
    { "Holzrahmen Natur", QT_TRANSLATE_NOOP("PvHumanReadable", "Holzrahmen Natur") },
    { "Holzrahmen Eiche", QT_TRANSLATE_NOOP("PvHumanReadable", "Holzrahmen Eiche") },
    { "Holzrahmen Walnuss", QT_TRANSLATE_NOOP("PvHumanReadable", "Holzrahmen Walnuss") },
    { "Holzrahmen Schwarz", QT_TRANSLATE_NOOP("PvHumanReadable", "Holzrahmen Schwarz") },
    { "Holzrahmen Weiß", QT_TRANSLATE_NOOP("PvHumanReadable", "Holzrahmen Weiß") },
    { "Holzrahmen Gruen", QT_TRANSLATE_NOOP("PvHumanReadable", "Holzrahmen Grün") },
    { "Holzrahmen Blau", QT_TRANSLATE_NOOP("PvHumanReadable", "Holzrahmen Blau") },
    { "Holzrahmen Rot", QT_TRANSLATE_NOOP("PvHumanReadable", "Holzrahmen Rot") },
    { "aluline_gold", QT_TRANSLATE_NOOP("PvHumanReadable", "Aluline Gold") },
    { "aluline_silver", QT_TRANSLATE_NOOP("PvHumanReadable", "Aluline Silber") },
    { "aluline_bronze", QT_TRANSLATE_NOOP("PvHumanReadable", "Aluline Bronze") },
    { "aluline_champagne", QT_TRANSLATE_NOOP("PvHumanReadable", "Aluline Champagner") },
    { "aluline_black", QT_TRANSLATE_NOOP("PvHumanReadable", "Aluline Schwarz") },
    { "aluline_white", QT_TRANSLATE_NOOP("PvHumanReadable", "Aluline Weiß") },
    { "aluline_red", QT_TRANSLATE_NOOP("PvHumanReadable", "Aluline Rot") },
    { "aluline_blue", QT_TRANSLATE_NOOP("PvHumanReadable", "Aluline Blau") },
    { "aluline_green", QT_TRANSLATE_NOOP("PvHumanReadable", "Aluline Grün") },
    { "metal_black", QT_TRANSLATE_NOOP("PvHumanReadable", "Metallrahmen Schwarz") },
    { "metal_silver", QT_TRANSLATE_NOOP("PvHumanReadable", "Metallrahmen Silber") },
    { "metal_copper", QT_TRANSLATE_NOOP("PvHumanReadable", "Metallrahmen Kupfer") },
    { "metal_gold", QT_TRANSLATE_NOOP("PvHumanReadable", "Metallrahmen Gold") },
    { "premiumposter_without_frame", QT_TRANSLATE_NOOP("PvHumanReadable", "Premium-Poster Ohne Rahmen") },
    { "Schattenfugenrahmen Schwarz", QT_TRANSLATE_NOOP("PvHumanReadable", "Schattenfugenrahmen Schwarz") },
    { "Schattenfugenrahmen Natur", QT_TRANSLATE_NOOP("PvHumanReadable", "Schattenfugenrahmen Natur") },
    { "Galerierahmen Fuer Leinwand", QT_TRANSLATE_NOOP("PvHumanReadable", "Galerierahmen Für Leinwand") },
    { "Bilderleiste Buche", QT_TRANSLATE_NOOP("PvHumanReadable", "Bilderleiste Buche") },
    { "baroque_gold", QT_TRANSLATE_NOOP("PvHumanReadable", "Barockleiste Gold") },
    { "baroque_silver", QT_TRANSLATE_NOOP("PvHumanReadable", "Barockleiste Silber") },
    { "acrylic_frame_clear", QT_TRANSLATE_NOOP("PvHumanReadable", "Acrylrahmen Klar") },
    { "poster_hanger_black", QT_TRANSLATE_NOOP("PvHumanReadable", "Posterleiste Schwarz") },
    { "poster_hanger_white", QT_TRANSLATE_NOOP("PvHumanReadable", "Posterleiste Weiß") },
    { "canvas_slim_stretcher", QT_TRANSLATE_NOOP("PvHumanReadable", "Leinwand Schmaler Keilrahmen") },
};
static_assert(std::size(templateTexts) == 45);
}

PvHumanReadable::PvHumanReadable()
{
    initTemplateNames();
}

PvHumanReadable::~PvHumanReadable() = default;

void PvHumanReadable::initTemplateNames()
{
    m_templateNames.reserve(std::size(templateTexts));
    for (const TemplateText& entry : templateTexts)
        m_templateNames.insert(QString::fromUtf8(entry.name), tr(entry.text));
}

QString PvHumanReadable::templateName(const QString& name) const
{
    return m_templateNames.value(name, name);
}
