#include "PvXMLLoader.h"

#include "PvDiagnostics.h"

#include <QDomDocument>
#include <QFile>

QDomElement PvXMLLoader::loadDocumentElement(const QFileInfo& file)
{
    return loadDocumentElement(file.filePath());
}

QDomElement PvXMLLoader::loadDocumentElement(const QString& filePath)
{
    QFile file(filePath);
    if (!file.open(QIODevice::ReadOnly)) {
        if (PvDiagnostics::isListening(pvXmlLog()))
            PvDiagnostics::reportFile(pvXmlLog(), PvDiagnostic::Error, QStringLiteral("cannot be read: ") + file.errorString());
        return {};
    }
    QDomDocument document;
    QString error;
    int line = 0;
    int column = 0;
    if (!document.setContent(&file, &error, &line, &column)) {
        // Parsed again only on failure and only when someone listens, to say where and why.
        if (PvDiagnostics::isListening(pvXmlLog()) && file.seek(0)) {
            PvDiagnostic diagnostic = PvDiagnostics::xmlError(file.readAll(), line, column, error);
            diagnostic.message += QStringLiteral("; the file is skipped");
            PvDiagnostics::report(pvXmlLog(), diagnostic);
        }
        return {};
    }
    // The document lives as long as this element or a copy of it: callers keep it while they
    // use its children.
    return document.documentElement();
}
