#include "PvBareDomParse.h"

#include "PvPlatformIndependent.h"

#include <QDomDocument>
#include <QFile>

int PvBareDomParse::parseDirectory(const QDir& dir)
{
    int parsed = 0;
    // The same listing, opening and setContent() overload as the reader's (PvXMLLoader), so
    // that the ratio of load to parse compares like with like.
    const QFileInfoList files = PvPlatformIndependent::instance().getDirectFilesInDirectoryAsFileInfos(dir, {});
    for (const QFileInfo& fileInfo : files) {
        QFile file(fileInfo.filePath());
        if (!file.open(QIODevice::ReadOnly))
            continue;
        QDomDocument document;
        QString error;
        int line = 0;
        int column = 0;
        if (document.setContent(&file, &error, &line, &column) && !document.documentElement().isNull())
            ++parsed;
    }
    return parsed;
}
