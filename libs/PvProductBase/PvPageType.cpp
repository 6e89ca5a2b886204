#include "PvPageType.h"

PvPageType::PvPageType(const QString& text)
{
    setFromText(text);
}

void PvPageType::fillTable(Table* table) const
{
    table->insertAll({
        { "spine", PvPageTypeSpine },
        { "left", PvPageTypeLeft },
        { "right", PvPageTypeRight },
        { "page", PvPageTypePage },
        { "flyleaf", PvPageTypeFlyleaf },
        { "cover_back", PvPageTypeCoverBack },
        { "cover", PvPageTypeCover },
        { "cover_front", PvPageTypeCoverFront },
        { "cover_inside_front", PvPageTypeCoverInsideFront },
        { "cover_inside_back", PvPageTypeCoverInsideBack },
        { "month", PvPageTypeMonth },
        { "run", PvPageTypeRun },
        { "run_right_left", PvPageTypeRunRightLeft },
        { "run_pairs", PvPageTypeRunPairs },
        { "run_left_right", PvPageTypeRunLeftRight },
        { "run_year", PvPageTypeRunYear },
        { "jacket_flap_right", PvPageTypeJacketFlapRight },
        { "jacket_back", PvPageTypeJacketBack },
        { "jacket_front", PvPageTypeJacketFront },
        { "jacket_flap_left", PvPageTypeJacketFlapLeft },
        { "jacket", PvPageTypeJacket },
        { "panorama", PvPageTypePanorama },
        { "opening", PvPageTypeOpening },
        { "page_left", PvPageTypePageLeft },
        { "page_right", PvPageTypePageRight },
        { "month_page", PvPageTypeMonthPage },
        { "panorama_page", PvPageTypePanoramaPage },
        { "opening_page", PvPageTypeOpeningPage },
        { "all", PvPageTypeAll },
    });
}
