#include "PvPaperType.h"

PvPaperType::PvPaperType(const QString& text)
{
    setFromText(text);
}

void PvPaperType::fillTable(Table* table) const
{
    table->insertAll({
        { "digital_matt", PvPaperTypeDigitalMatt },
        { "digital_glossy", PvPaperTypeDigitalGlossy },
        { "offset_matt", PvPaperTypeOffsetMatt },
        { "offset_glossy", PvPaperTypeOffsetGlossy },
        { "photo_matt", PvPaperTypePhotoMatt },
        { "photo_glossy", PvPaperTypePhotoGlossy },
        { "premium_digital_matt", PvPaperTypePremiumDigitalMatt },
        { "premium_digital_glossy", PvPaperTypePremiumDigitalGlossy },
    });
}

namespace {
constexpr std::pair<PvPaperTypeEnum, const char*> names[] = {
    { PvPaperTypeDigitalMatt, QT_TRANSLATE_NOOP("PvPaperType", "Digitaldruck Matt") },
    { PvPaperTypeDigitalGlossy, QT_TRANSLATE_NOOP("PvPaperType", "Digitaldruck Glänzend") },
    { PvPaperTypeOffsetMatt, QT_TRANSLATE_NOOP("PvPaperType", "Offsetdruck Matt") },
    { PvPaperTypeOffsetGlossy, QT_TRANSLATE_NOOP("PvPaperType", "Offsetdruck Glänzend") },
    { PvPaperTypePhotoMatt, QT_TRANSLATE_NOOP("PvPaperType", "Fotopapier Matt") },
    { PvPaperTypePhotoGlossy, QT_TRANSLATE_NOOP("PvPaperType", "Fotopapier Glänzend") },
    { PvPaperTypePremiumDigitalMatt, QT_TRANSLATE_NOOP("PvPaperType", "Premium Digitaldruck Matt") },
    { PvPaperTypePremiumDigitalGlossy, QT_TRANSLATE_NOOP("PvPaperType", "Premium Digitaldruck Glänzend") },
};
}

QString PvPaperType::humanReadableName() const
{
    return pvTranslatedText("PvPaperType", names, m_value);
}
