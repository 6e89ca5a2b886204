#include "PvJigType.h"

PvJigType::PvJigType(PvJigTypeEnum value) noexcept
    : PvEnumWrapper(value)
{
}

PvJigType::PvJigType(const QString& text)
{
    setFromText(text);
}

void PvJigType::fillTable(Table* table) const
{
    table->insertAll({
        { "unknown", PvJigTypeUnknown },
        { "background", PvJigTypeBackground },
        { "background_refinement", PvJigTypeBackground },
        { "backgrounds", PvJigTypeBackground },
        { "Hintergrund", PvJigTypeBackground },
        { "content", PvJigTypeContent },
        { "contents", PvJigTypeContent },
        { "clipart", PvJigTypeClipart },
        { "cliparts", PvJigTypeClipart },
        { "layout", PvJigTypeLayout },
        { "Layouts", PvJigTypeLayout },
        { "passepartout", PvJigTypePassepartout },
        { "fading", PvJigTypePassepartout },
        { "masks", PvJigTypePassepartout },
        { "styles_v2", PvJigTypeStylesV2 },
        { "frame", PvJigTypeFrame },
        { "Rahmen", PvJigTypeFrame },
        { "frame_passepartout", PvJigTypeFramePassepartout },
        { "frame_glas", PvJigTypeFrameGlas },
        { "wallholder", PvJigTypeWallholder },
        { "storybook", PvJigTypeStorybook },
        { "variant_template", PvJigTypeVariantTemplate },
    });
}
