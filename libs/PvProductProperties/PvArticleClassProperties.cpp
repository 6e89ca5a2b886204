#include "PvArticleClassProperties.h"

PvArticleClassProperties::PvArticleClassProperties() = default;

void PvArticleClassProperties::setPaperType(const PvFotoPaperType& paperType)
{
    m_paperType = paperType;
}
