#include "PvPlatformIndependent.h"

#include <algorithm>

QFileInfoList PvPlatformIndependent::getDirectFilesInDirectoryAsFileInfos(const QDir& dir, const QStringList& nameFilters) const
{
    QFileInfoList files = dir.entryInfoList(nameFilters, QDir::Files | QDir::NoDotAndDotDot, QDir::NoSort);
    std::sort(files.begin(), files.end(), [](const QFileInfo& a, const QFileInfo& b) {
        return a.fileName().toUtf8() < b.fileName().toUtf8();
    });
    return files;
}
