#include "PvPageAlignment.h"

PvPageAlignment::PvPageAlignment(const QString& text)
{
    setFromText(text);
}

void PvPageAlignment::fillTable(Table* table) const
{
    table->insertAll({
        { "left", PvPageAlignmentLeft },
        { "right", PvPageAlignmentRight },
        { "center", PvPageAlignmentCenter },
        { "spread", PvPageAlignmentSpread },
        { "top", PvPageAlignmentTop },
        { "bottom", PvPageAlignmentBottom },
        { "middle", PvPageAlignmentMiddle },
    });
}
