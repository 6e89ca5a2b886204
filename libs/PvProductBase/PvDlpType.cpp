#include "PvDlpType.h"

PvDlpType::PvDlpType(const QString& text)
{
    setFromText(text);
}

void PvDlpType::fillTable(Table* table) const
{
    table->insertAll({
        { "background", PvDlpTypeBackground },
        { "styles", PvDlpTypeStyles },
        { "content", PvDlpTypeContent },
        { "clipart", PvDlpTypeClipart },
        { "mask", PvDlpTypeMask },
        { "layout", PvDlpTypeLayout },
        { "storybook", PvDlpTypeStorybook },
        { "font", PvDlpTypeFont },
        { "textstyle", PvDlpTypeTextstyle },
    });
}
