#include "PvJigType.h"

#include "PvJigTypeList.h"

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

namespace {
constexpr std::pair<PvJigTypeEnum, const char*> displayNames[] = {
    { PvJigTypeBackground, QT_TRANSLATE_NOOP("PvJigType", "Hintergrund") },
    { PvJigTypeClipart, QT_TRANSLATE_NOOP("PvJigType", "Clipart") },
    { PvJigTypeContent, QT_TRANSLATE_NOOP("PvJigType", "Design") },
    { PvJigTypeLayout, QT_TRANSLATE_NOOP("PvJigType", "Layout") },
    { PvJigTypePassepartout, QT_TRANSLATE_NOOP("PvJigType", "Maske") },
    { PvJigTypeFrame, QT_TRANSLATE_NOOP("PvJigType", "Rahmen") },
    { PvJigTypeFramePassepartout, QT_TRANSLATE_NOOP("PvJigType", "Passepartout") },
    { PvJigTypeFrameGlas, QT_TRANSLATE_NOOP("PvJigType", "Glas") },
    { PvJigTypeWallholder, QT_TRANSLATE_NOOP("PvJigType", "Wandhalterung") },
    { PvJigTypeStylesV2, QT_TRANSLATE_NOOP("PvJigType", "Designvorlage") },
    { PvJigTypeStorybook, QT_TRANSLATE_NOOP("PvJigType", "Buchvorlage") },
};
}

QString PvJigType::describe() const
{
    return pvTranslatedText("PvJigType", displayNames, m_value);
}

const QHash<PvJigTypeEnum, PvDlpTypeEnum>& PvJigType::jigToDlpEnumHash()
{
    // 6144 is style templates together with story books; 16384 and 32768 have no names here
    // but their download types (fonts, text styles) do.
    static const QHash<PvJigTypeEnum, PvDlpTypeEnum> hash {
        { PvJigTypeClipart, PvDlpTypeClipart },
        { PvJigTypeBackground, PvDlpTypeBackground },
        { PvJigTypeContent, PvDlpTypeContent },
        { PvJigTypePassepartout, PvDlpTypeMask },
        { PvJigTypeStylesV2, PvDlpTypeStyles },
        { PvJigTypeStorybook, PvDlpTypeStorybook },
        { PvJigTypeEnum(PvJigTypeStylesV2 | PvJigTypeStorybook), PvDlpTypeEnum(PvDlpTypeStyles | PvDlpTypeStorybook) },
        { PvJigTypeLayout, PvDlpTypeLayout },
        { PvJigTypeEnum(16384), PvDlpTypeFont },
        { PvJigTypeEnum(32768), PvDlpTypeTextstyle },
    };
    return hash;
}

PvDlpType PvJigType::dlpType() const
{
    return jigToDlpEnumHash().value(m_value, PvDlpTypeEnum(0));
}

PvJigType PvJigType::createFromDlpType(const PvDlpType& dlpType)
{
    const auto& hash = jigToDlpEnumHash();
    for (auto it = hash.cbegin(); it != hash.cend(); ++it) {
        if (it.value() == dlpType.value())
            return it.key();
    }
    return {};
}

bool PvJigType::isDownloadable() const
{
    return PvJigTypeList::allDownloadableElementTypes().contains(*this);
}
