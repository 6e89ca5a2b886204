#include "PvXMLBasedRegistry.h"

#include "PvPlatformIndependent.h"

#include <QDirIterator>

#include <algorithm>

PvXMLBasedRegistry::PvXMLBasedRegistry(const QString& fileSuffix, bool recursive)
    : m_fileSuffix(fileSuffix)
    , m_recursive(recursive)
{
}

PvXMLBasedRegistry::~PvXMLBasedRegistry() = default;

QString PvXMLBasedRegistry::fileSuffix() const
{
    return m_fileSuffix;
}

bool PvXMLBasedRegistry::isRecursive() const
{
    return m_recursive;
}

QList<QDir> PvXMLBasedRegistry::supervisedDirectories() const
{
    return {};
}

QStringList PvXMLBasedRegistry::nameFilter() const
{
    return { QStringLiteral("*.") + m_fileSuffix };
}

QFileInfoList PvXMLBasedRegistry::matchingFiles(const QStringList& filters) const
{
    QFileInfoList files;
    const QList<QDir> dirs = supervisedDirectories();
    for (const QDir& dir : dirs) {
        if (!m_recursive) {
            files += PvPlatformIndependent::instance().getDirectFilesInDirectoryAsFileInfos(dir, filters);
            continue;
        }
        QDirIterator it(dir.path(), filters, QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            it.next();
            files.append(it.fileInfo());
        }
    }
    std::stable_sort(files.begin(), files.end(), [](const QFileInfo& a, const QFileInfo& b) {
        return a.fileName().toUtf8() < b.fileName().toUtf8();
    });
    return files;
}

bool PvXMLBasedRegistry::init()
{
    bool anyLoaded = false;
    const QFileInfoList files = matchingFiles(nameFilter());
    for (const QFileInfo& file : files)
        anyLoaded |= parseXML(file, false);
    return anyLoaded;
}

bool PvXMLBasedRegistry::loadFiles(const QStringList& fileNames, bool reload)
{
    bool allLoaded = !fileNames.isEmpty();
    for (const QString& name : fileNames) {
        const QFileInfoList found = matchingFiles({ name });
        bool loaded = false;
        for (const QFileInfo& file : found)
            loaded |= parseXML(file, reload);
        allLoaded &= loaded;
    }
    return allLoaded;
}
