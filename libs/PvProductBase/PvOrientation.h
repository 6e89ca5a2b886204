#pragma once

#include "PvEnumWrapper.h"
#include "pvproductbase_export.h"

enum PvOrientationEnum : quint32 {
    PvOrientationPortrait = 1,
    PvOrientationLandscape = 2,
    PvOrientationQuadratic = 4,
};

/*! The orientation of an article. */
class PVPRODUCTBASE_EXPORT PvOrientation : public PvEnumWrapper<PvOrientationEnum>
{
public:
    PvOrientation(PvOrientationEnum value = PvOrientationEnum(0)) noexcept
        : PvEnumWrapper(value)
    {
    }
    explicit PvOrientation(const QString& text);
    [[nodiscard]] bool isPortrait() const noexcept { return hasAnyOf(PvOrientationPortrait); }
    [[nodiscard]] bool isLandscape() const noexcept { return hasAnyOf(PvOrientationLandscape); }
    [[nodiscard]] bool isQuadratic() const noexcept { return hasAnyOf(PvOrientationQuadratic); }

protected:
    void fillTable(Table* table) const override;
};
