#include "PvFotoPaperType.h"

PvFotoPaperType::PvFotoPaperType(const QString& text)
{
    setFromText(text);
}

void PvFotoPaperType::fillTable(Table* table) const
{
    table->insertAll({
        { "none", PvFotoPaperTypeNone },
        { "glossy", PvFotoPaperTypeGlossy },
        { "matt", PvFotoPaperTypeMatt },
        { "silk", PvFotoPaperTypeSilk },
        { "pearl", PvFotoPaperTypePearl },
    });
}
