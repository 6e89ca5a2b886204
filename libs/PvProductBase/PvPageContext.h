#pragma once

#include "PvPageAlignment.h"
#include "PvPageType.h"
#include "pvproductbase_export.h"

/*! A page's type and its alignment in the spread. */
class PVPRODUCTBASE_EXPORT PvPageContext
{
public:
    PvPageContext() = default;
    PvPageContext(const PvPageType& pageType, const PvPageAlignment& alignment) : m_pageType(pageType), m_alignment(alignment) { }

    [[nodiscard]] PvPageType pageType() const { return m_pageType; }
    [[nodiscard]] PvPageAlignment alignment() const { return m_alignment; }
    //! The page types share a bit and the alignments share a bit.
    [[nodiscard]] bool matchesWith(const PvPageContext& other) const
    {
        return (m_pageType & other.m_pageType) != 0 && (m_alignment & other.m_alignment) != 0;
    }

    friend bool operator==(const PvPageContext& a, const PvPageContext& b)
    {
        return a.m_pageType == b.m_pageType && a.m_alignment == b.m_alignment;
    }
    friend bool operator!=(const PvPageContext& a, const PvPageContext& b) { return !(a == b); }

private:
    PvPageType m_pageType;
    PvPageAlignment m_alignment;
};
