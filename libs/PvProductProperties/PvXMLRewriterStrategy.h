#pragma once

#include "PvEnumWrapper.h"
#include "pvproductproperties_export.h"

enum PvXMLRewriterStrategyEnum : quint32 {
    PvXMLRewriterStrategyNone = 0,
    PvRewriteOneToTwoSides = 1,
    PvRewriteOneToTwoPages = 2,
    PvRewriteEasyToVario = 4,
    PvRewriteSplitInTwoProjects = 8,
    PvRewriteOneSidedEasyToTwoSidedVario = 5,
    PvRewriteOneSidedVario10ToTwoSidedVario5 = 9,
};

/*! How an old project of a retired product is rewritten for its replacement. */
class PVPRODUCTPROPERTIES_EXPORT PvXMLRewriterStrategy : public PvEnumWrapper<PvXMLRewriterStrategyEnum>
{
public:
    //! The strategy \a value.
    PvXMLRewriterStrategy(PvXMLRewriterStrategyEnum value = PvXMLRewriterStrategyEnum(0)) noexcept
        : PvEnumWrapper(value)
    {
    }
    //! The strategies named in the comma-separated \a text.
    explicit PvXMLRewriterStrategy(const QString& text);

protected:
    //! Fills the table with the strategies' names.
    void fillTable(Table* table) const override;
};
