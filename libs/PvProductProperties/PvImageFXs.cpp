#include "PvImageFXs.h"

PvImageFXs::PvImageFXs(const QString& text)
{
    setFromText(text);
}

void PvImageFXs::fillTable(Table* table) const
{
    table->insertAll({
        { "grayscale", PvImageFXsGrayscale },
        { "gray", PvImageFXsGrayscale },
        { "none", PvImageFXsNone },
        { "", PvImageFXsNone },
        { "PRESERVE_ALPHA_CHANNEL", PvImageFXsPreserveAlphaChannel },
    });
}
