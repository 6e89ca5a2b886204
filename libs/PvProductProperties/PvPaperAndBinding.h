#pragma once

#include "PvPageBinding.h"
#include "PvPaperType.h"
#include "pvproductproperties_export.h"

#include <QString>

/*! A paper type together with the binding it is bound with. */
class PVPRODUCTPROPERTIES_EXPORT PvPaperAndBinding
{
public:
    PvPaperAndBinding();
    //! \a paperType bound with \a binding.
    PvPaperAndBinding(const PvPaperType& paperType, const PvPageBinding& binding);
    //! Plain values.
    //! @{
    PvPaperAndBinding(const PvPaperAndBinding& other);
    PvPaperAndBinding(PvPaperAndBinding&& other) noexcept;
    PvPaperAndBinding& operator=(const PvPaperAndBinding& other);
    PvPaperAndBinding& operator=(PvPaperAndBinding&& other) noexcept;
    virtual ~PvPaperAndBinding();
    //! @}

    //! The paper.
    [[nodiscard]] PvPaperType paperType() const { return m_paperType; }
    //! The binding.
    [[nodiscard]] PvPageBinding binding() const { return m_binding; }

    //! The same paper and binding.
    [[nodiscard]] bool operator==(const PvPaperAndBinding& other) const;
    //! Differs in paper or binding.
    [[nodiscard]] bool operator!=(const PvPaperAndBinding& other) const { return !(*this == other); }

    //! A digital print paper, plain or premium, in layflat binding.
    [[nodiscard]] bool isIndigoLayFlat() const;
    //! "paper / binding" in display names, or the paper alone when the binding has no name.
    [[nodiscard]] QString describe() const;

private:
    PvPaperType m_paperType;
    PvPageBinding m_binding;
};
