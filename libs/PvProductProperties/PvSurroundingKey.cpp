#include "PvSurroundingKey.h"

#include <QDebug>
#include <QDebugStateSaver>

PvSurroundingKey::PvSurroundingKey()
    : m_pageContext(PvPageType(PvPageTypePage), PvPageAlignment(PvPageAlignmentLeft))
{
}

PvSurroundingKey::PvSurroundingKey(const PvPageContext& pageContext, int pageIndex, const PvArticleVariants& variant)
    : m_pageContext(pageContext)
    , m_pageIndex(pageIndex)
    , m_variant(variant)
{
}

PvSurroundingKey::PvSurroundingKey(const PvSurroundingKey& other) = default;
PvSurroundingKey::PvSurroundingKey(PvSurroundingKey&& other) noexcept = default;
PvSurroundingKey& PvSurroundingKey::operator=(const PvSurroundingKey& other) = default;
PvSurroundingKey& PvSurroundingKey::operator=(PvSurroundingKey&& other) noexcept = default;
PvSurroundingKey::~PvSurroundingKey() = default;

bool PvSurroundingKey::operator==(const PvSurroundingKey& other) const
{
    return m_pageIndex == other.m_pageIndex && m_pageContext == other.m_pageContext && m_variant == other.m_variant;
}

bool PvSurroundingKey::isOkayFor(const PvSurroundingKey& other) const
{
    if (m_pageIndex == -1 && m_pageContext.matchesWith(other.m_pageContext))
        return m_variant == other.m_variant || other.m_pageIndex == -1;
    // Deliberately without the context: a page number wins over page type and alignment.
    return m_pageIndex == other.m_pageIndex;
}

QDebug operator<<(QDebug debug, const PvSurroundingKey& key)
{
    const QDebugStateSaver saver(debug);
    debug.noquote().nospace() << key.pageType().encodeCSV() << ' ' << key.alignment().encodeCSV() << ' '
                              << key.pageIndex() << ' ' << key.variant();
    return debug;
}
