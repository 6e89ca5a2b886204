#pragma once

#include "pvloading_export.h"

#include <QDomElement>
#include <QString>

#include <optional>

//! Reads an attribute with one lookup in the element's attribute hash, where asking whether
//! it is there and then for its text takes two.
class PVLOADING_EXPORT PvXMLAttribute
{
public:
    //! The text of \a element's attribute \a name, or nothing when there is no such attribute.
    [[nodiscard]] static std::optional<QString> value(const QDomElement& element, const QString& name);
};

/*!
 * The attributes of one element, for a reader that knows many optional names of which an
 * element carries a few: once every attribute the element has was found, the names still
 * asked for are absent, and answer nothing without a lookup. Each name is to be asked for
 * once; the count of attributes left would go wrong otherwise.
 */
class PVLOADING_EXPORT PvXMLAttributes
{
public:
    //! The attributes of \a element.
    explicit PvXMLAttributes(const QDomElement& element);

    //! The element they belong to.
    [[nodiscard]] const QDomElement& element() const { return m_element; }
    //! The text of attribute \a name, or nothing when there is no such attribute.
    [[nodiscard]] std::optional<QString> take(const QString& name);

private:
    QDomElement m_element;
    int m_left = 0;
};
