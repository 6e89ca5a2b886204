#pragma once

#include "PvDlpType.h"
#include "PvEnumWrapper.h"
#include "pvproductproperties_export.h"

#include <QHash>

enum PvJigTypeEnum : quint32 {
    PvJigTypeUnknown = 0,
    PvJigTypeBackground = 1,
    PvJigTypeClipart = 2,
    PvJigTypeContent = 4,
    PvJigTypeLayout = 8,
    PvJigTypePassepartout = 16,
    PvJigTypeFrame = 128,
    PvJigTypeFramePassepartout = 256,
    PvJigTypeFrameGlas = 512,
    PvJigTypeWallholder = 1024,
    PvJigTypeStylesV2 = 2048,
    PvJigTypeStorybook = 4096,
    PvJigTypeVariantTemplate = 8192,
};

/*! A kind of design element the editor places on pages: backgrounds, cliparts, layouts, masks, frames, ... */
class PVPRODUCTPROPERTIES_EXPORT PvJigType : public PvEnumWrapper<PvJigTypeEnum>
{
public:
    //! The kinds \a value.
    PvJigType(PvJigTypeEnum value = PvJigTypeEnum(0)) noexcept
        : PvEnumWrapper(value)
    {
    }
    //! The kinds named in the comma-separated \a text.
    explicit PvJigType(const QString& text);

    //! The translated display name; empty for unknown values and for combinations of kinds.
    [[nodiscard]] QString describe() const;
    //! The download package type of this kind, or 0 when its content is not downloaded.
    [[nodiscard]] PvDlpType dlpType() const;
    //! True for the kinds listed by PvJigTypeList::allDownloadableElementTypes().
    [[nodiscard]] bool isDownloadable() const;

    //! The kind whose download package type is \a dlpType, or 0 when none maps to it.
    [[nodiscard]] static PvJigType createFromDlpType(const PvDlpType& dlpType);
    //! Kind to download package type, for the kinds that have one.
    [[nodiscard]] static const QHash<PvJigTypeEnum, PvDlpTypeEnum>& jigToDlpEnumHash();

protected:
    //! Fills the table with the kinds' names, aliases after the written name.
    void fillTable(Table* table) const override;
};
