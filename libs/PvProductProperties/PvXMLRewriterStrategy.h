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
    PvXMLRewriterStrategy(PvXMLRewriterStrategyEnum value = PvXMLRewriterStrategyEnum(0)) noexcept;
    explicit PvXMLRewriterStrategy(const QString& text);

protected:
    void fillTable(Table* table) const override;
};
