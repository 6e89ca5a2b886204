#include "PvProductSources.h"

#include "PvDiagnosticCollector.h"
#include "PvPlatformIndependent.h"
#include "PvXMLLoader.h"

#include <QDomElement>

PvProductSources::PvProductSources(const QDir& dataRoot)
    : m_files(read({ QDir(dataRoot.filePath(QStringLiteral("products-updates"))), QDir(dataRoot.filePath(QStringLiteral("products"))) }))
    , m_legacy(read({ QDir(dataRoot.filePath(QStringLiteral("resources/products/legacy"))) }))
{
}

QHash<QString, QStringList> PvProductSources::read(const QList<QDir>& dirs)
{
    // The loader has reported on these files already; only the names are wanted here.
    const PvDiagnosticCollector quiet;
    QHash<QString, QStringList> files;
    for (const QDir& dir : dirs) {
        QHash<QString, QStringList> inDir;
        for (const QFileInfo& file : PvPlatformIndependent::instance().getDirectFilesInDirectoryAsFileInfos(dir, {})) {
            const QDomElement root = PvXMLLoader::loadDocumentElement(file);
            if (root.isNull())
                continue;
            const QString name = root.firstChildElement(QStringLiteral("product")).attribute(QStringLiteral("name")).trimmed();
            inDir[name].prepend(file.filePath()); // a later file wins
        }
        for (auto it = inDir.cbegin(); it != inDir.cend(); ++it)
            files[it.key()] += it.value();
    }
    return files;
}
