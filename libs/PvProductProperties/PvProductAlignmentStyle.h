#pragma once

#include "PvEnumWrapper.h"
#include "pvproductproperties_export.h"

enum PvProductAlignmentStyleEnum : quint32 {
    PvProductAlignmentStyleNormal = 0,
    PvProductAlignmentStyleCard = 1,
    PvProductAlignmentStyleVarioCard = 2,
    PvProductAlignmentStyleCollegeblock = 4,
    PvProductAlignmentStyleFotoAdventCalendar = 8,
};

/*! How the pages of a product are laid out against each other in spreads. */
class PVPRODUCTPROPERTIES_EXPORT PvProductAlignmentStyle : public PvEnumWrapper<PvProductAlignmentStyleEnum>
{
public:
    PvProductAlignmentStyle(PvProductAlignmentStyleEnum value = PvProductAlignmentStyleEnum(0)) noexcept;
    explicit PvProductAlignmentStyle(const QString& text);

protected:
    void fillTable(Table* table) const override;
};
