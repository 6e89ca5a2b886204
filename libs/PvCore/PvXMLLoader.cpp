#include "PvXMLLoader.h"

#include <QDomDocument>
#include <QFile>

QDomElement PvXMLLoader::loadDocumentElement(const QFileInfo& file)
{
    return loadDocumentElement(file.filePath());
}

QDomElement PvXMLLoader::loadDocumentElement(const QString& filePath)
{
    QFile file(filePath);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QDomDocument document;
    if (!document.setContent(&file))
        return {};
    // The element keeps its document alive.
    return document.documentElement();
}
