#include "PvOrientation.h"

PvOrientation::PvOrientation(const QString& text)
{
    setFromText(text);
}

void PvOrientation::fillTable(Table* table) const
{
    table->insertAll({
        { "portrait", PvOrientationPortrait },
        { "landscape", PvOrientationLandscape },
        { "quadratic", PvOrientationQuadratic },
    });
}
