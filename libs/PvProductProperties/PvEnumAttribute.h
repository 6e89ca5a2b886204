#pragma once

#include "PvPageAlignment.h"
#include "PvXMLAttribute.h"

#include <QDomElement>

// Readers of enumeration attributes whose missing value is a fixed text: the text is decoded
// once, not again for every element that leaves the attribute out.

//! The value of \a element's attribute \a name, \a fallback when there is none.
template <typename Wrapper>
Wrapper pvEnumAttribute(const QDomElement& element, const QString& name, const Wrapper& fallback)
{
    const std::optional<QString> text = PvXMLAttribute::value(element, name);
    return text ? Wrapper(*text) : fallback;
}

//! pvEnumAttribute() of the element of \a attributes.
template <typename Wrapper>
Wrapper pvEnumAttribute(PvXMLAttributes& attributes, const QString& name, const Wrapper& fallback)
{
    const std::optional<QString> text = attributes.take(name);
    return text ? Wrapper(*text) : fallback;
}

//! What a missing "alignment" stands for: "left,right,top,bottom,center,middle".
inline const PvPageAlignment& pvEveryAlignment()
{
    static const PvPageAlignment every(QStringLiteral("left,right,top,bottom,center,middle"));
    return every;
}
