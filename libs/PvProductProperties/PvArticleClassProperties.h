#pragma once

#include "PvFotoPaperType.h"
#include "pvproductproperties_export.h"

/*! Settings that apply to every product of one article class. */
class PVPRODUCTPROPERTIES_EXPORT PvArticleClassProperties
{
public:
    PvArticleClassProperties();

    //! The photo paper of the class; none by default.
    [[nodiscard]] PvFotoPaperType paperType() const { return m_paperType; }
    //! Sets the photo paper of the class.
    void setPaperType(const PvFotoPaperType& paperType);

private:
    PvFotoPaperType m_paperType;
};
