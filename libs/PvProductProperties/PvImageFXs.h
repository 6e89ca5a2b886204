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
    //! The effects \a value.
    PvImageFXs(PvImageFXsEnum value = PvImageFXsEnum(0)) noexcept
        : PvEnumWrapper(value)
    {
    }
    //! The effects named in the comma-separated \a text.
    explicit PvImageFXs(const QString& text);

    //! Whether photos are turned grey.
    [[nodiscard]] bool isGray() const noexcept { return hasAnyOf(PvImageFXsGrayscale); }

protected:
    //! Fills the table with the effects' names.
    void fillTable(Table* table) const override;
};
