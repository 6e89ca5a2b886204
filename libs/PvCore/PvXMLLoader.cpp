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
    // The document lives as long as this element or a copy of it: callers keep it while they
    // use its children.
    return document.documentElement();
}
