#pragma once

#include "PvEnumWrapper.h"
#include "pvproductbase_export.h"

enum PvPageBindingEnum : quint32 {
    PvPageBindingPerfect = 1,
    PvPageBindingLayflat = 2,
    PvPageBindingThread = 4,
    PvPageBindingSpiral = 8,
};

/*! How the pages of a book are bound. */
class PVPRODUCTBASE_EXPORT PvPageBinding : public PvEnumWrapper<PvPageBindingEnum>
{
public:
    PvPageBinding(PvPageBindingEnum value = PvPageBindingEnum(0)) noexcept
        : PvEnumWrapper(value)
    {
    }
    explicit PvPageBinding(const QString& text);
    //! The German display name of a single value, translated; empty for 0 and for combinations.
    [[nodiscard]] QString humanReadableName() const;

protected:
    void fillTable(Table* table) const override;
};
