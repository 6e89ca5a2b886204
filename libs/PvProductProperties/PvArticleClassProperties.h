#pragma once

#include "PvFotoPaperType.h"
#include "pvproductproperties_export.h"

/*! Settings that apply to every product of one article class. */
class PVPRODUCTPROPERTIES_EXPORT PvArticleClassProperties
{
public:
    PvArticleClassProperties();

    [[nodiscard]] PvFotoPaperType paperType() const { return m_paperType; }
    void setPaperType(const PvFotoPaperType& paperType);

private:
    PvFotoPaperType m_paperType;
};
