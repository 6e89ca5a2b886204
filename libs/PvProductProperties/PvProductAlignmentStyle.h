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
    //! The style \a value.
    PvProductAlignmentStyle(PvProductAlignmentStyleEnum value = PvProductAlignmentStyleEnum(0)) noexcept
        : PvEnumWrapper(value)
    {
    }
    //! The styles named in the comma-separated \a text.
    explicit PvProductAlignmentStyle(const QString& text);

    //! ORs the styles named in \a text into the value; unknown words add nothing.
    void expandToKeyword(const QString& text);
    //! Exactly one of the single-page styles: card, collegeblock or foto_advent_calendar.
    [[nodiscard]] bool hasOnlySinglePages() const;

protected:
    //! Fills the table with the styles' names.
    void fillTable(Table* table) const override;
};
