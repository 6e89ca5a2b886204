#pragma once

#include "pvcore_export.h"

#include <QDomElement>
#include <QFileInfo>
#include <QString>

/*! Loads XML files. */
class PVCORE_EXPORT PvXMLLoader
{
public:
    /*!
     * The document element, or a null element when the file is missing, unreadable or not
     * well-formed. Keep the element while using its children: it holds the document.
     */
    [[nodiscard]] static QDomElement loadDocumentElement(const QFileInfo& file);
    [[nodiscard]] static QDomElement loadDocumentElement(const QString& filePath);
};
