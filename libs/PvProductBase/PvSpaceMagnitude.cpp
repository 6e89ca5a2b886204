#include "PvSpaceMagnitude.h"

PvSpaceMagnitude::PvSpaceMagnitude(const QString& text)
{
    setFromText(text);
}

void PvSpaceMagnitude::fillTable(Table* table) const
{
    table->insertAll({
        { "micro", PvSpaceMagnitudeMicro },
        { "mini", PvSpaceMagnitudeMini },
        { "tiny", PvSpaceMagnitudeTiny },
        { "small", PvSpaceMagnitudeSmall },
        { "compact", PvSpaceMagnitudeCompact },
        { "medium", PvSpaceMagnitudeMedium },
        { "standard", PvSpaceMagnitudeStandard },
        { "large", PvSpaceMagnitudeLarge },
        { "xl", PvSpaceMagnitudeXl },
        { "xxl", PvSpaceMagnitudeXxl },
    });
}
