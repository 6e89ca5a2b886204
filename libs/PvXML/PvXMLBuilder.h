#pragma once

#include "pvxml_export.h"

#include <QDomElement>
#include <QString>

/*! Writes XML elements. */
class PVXML_EXPORT PvXMLBuilder
{
public:
    //! Appends a child element \a name holding \a text to \a parent and answers it.
    static QDomElement buildDomElement(QDomElement& parent, const QString& name, const QString& text);
};
