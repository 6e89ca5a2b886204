#include "PvXMLLoader.h"

#include "PvDiagnostics.h"

#include <QDomDocument>
#include <QFile>
#include <QVarLengthArray>

namespace {
// Files up to this size are read in one call and parsed from memory, which costs the parser
// less than reading through the device in pieces. Larger ones are streamed, so that a huge
// file costs no more memory than its document.
constexpr qint64 maximumReadAtOnce = 16 * 1024 * 1024;

void reportUnreadable(const QFile& file)
{
    if (PvDiagnostics::isListening(pvXmlLog()))
        PvDiagnostics::reportFile(pvXmlLog(), PvDiagnostic::Error, QStringLiteral("cannot be read: ") + file.errorString());
}

void reportFailure(const QByteArray& data, int line, int column, const QString& error)
{
    PvDiagnostic diagnostic = PvDiagnostics::xmlError(data, line, column, error);
    diagnostic.message += QStringLiteral("; the file is skipped");
    PvDiagnostics::report(pvXmlLog(), diagnostic);
}
}

QDomElement PvXMLLoader::loadDocumentElement(const QFileInfo& file)
{
    return loadDocumentElement(file.filePath());
}

QDomElement PvXMLLoader::loadDocumentElement(const QString& filePath)
{
    QFile file(filePath);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        reportUnreadable(file);
        return {};
    }
    QDomDocument document;
    QString error;
    int line = 0;
    int column = 0;
    // Product files are a few kilobytes: most fit the stack. A file is read at the size it had
    // when opened; one that reports no size may still have content, so it is streamed.
    const qint64 size = file.size();
    if (size > 0 && size <= maximumReadAtOnce) {
        QVarLengthArray<char, 16 * 1024> bytes(size);
        const qint64 read = file.read(bytes.data(), size);
        if (read < 0) {
            reportUnreadable(file);
            return {};
        }
        const QByteArray data = QByteArray::fromRawData(bytes.constData(), read);
        if (!document.setContent(data, &error, &line, &column)) {
            // Where and why are worked out only when someone listens.
            if (PvDiagnostics::isListening(pvXmlLog()))
                reportFailure(data, line, column, error);
            return {};
        }
    } else if (!document.setContent(&file, &error, &line, &column)) {
        if (PvDiagnostics::isListening(pvXmlLog()) && file.seek(0))
            reportFailure(file.readAll(), line, column, error);
        return {};
    }
    // The document lives as long as this element or a copy of it: callers keep it while they
    // use its children.
    return document.documentElement();
}
