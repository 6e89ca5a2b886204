#pragma once

#include "PvEnumWrapper.h"
#include "pvproductproperties_export.h"

enum PvImageFXsEnum : quint32 {
    PvImageFXsNone = 0,
    PvImageFXsGrayscale = 1,
    PvImageFXsPreserveAlphaChannel = 4,
};

/*! Image effects a product applies to photos; several combine as a comma list. */
class PVPRODUCTPROPERTIES_EXPORT PvImageFXs : public PvEnumWrapper<PvImageFXsEnum>
{
public:
    PvImageFXs(PvImageFXsEnum value = PvImageFXsEnum(0)) noexcept;
    explicit PvImageFXs(const QString& text);

    [[nodiscard]] bool isGray() const noexcept { return hasAnyOf(PvImageFXsGrayscale); }

protected:
    void fillTable(Table* table) const override;
};
