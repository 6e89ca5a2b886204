#include "PvXMLRewriterStrategy.h"

PvXMLRewriterStrategy::PvXMLRewriterStrategy(const QString& text)
{
    setFromText(text);
}

void PvXMLRewriterStrategy::fillTable(Table* table) const
{
    table->insertAll({
        { "RewriteOneToTwoSides", PvRewriteOneToTwoSides },
        { "RewriteOneToTwoPages", PvRewriteOneToTwoPages },
        { "RewriteEasyToVario", PvRewriteEasyToVario },
        { "RewriteSplitInTwoProjects", PvRewriteSplitInTwoProjects },
        { "RewriteOneSidedEasyToTwoSidedVario", PvRewriteOneSidedEasyToTwoSidedVario },
        { "RewriteOneSidedVario10ToTwoSidedVario5", PvRewriteOneSidedVario10ToTwoSidedVario5 },
    });
}
