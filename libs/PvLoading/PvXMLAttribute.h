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
