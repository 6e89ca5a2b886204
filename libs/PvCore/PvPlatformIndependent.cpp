#include "PvPlatformIndependent.h"

#include <algorithm>
#include <utility>
#include <vector>

QFileInfoList PvPlatformIndependent::getDirectFilesInDirectoryAsFileInfos(const QDir& dir, const QStringList& nameFilters) const
{
    const QFileInfoList found = dir.entryInfoList(nameFilters, QDir::Files | QDir::NoDotAndDotDot, QDir::NoSort);
    // Byte order of the UTF-8 names, each encoded once rather than at every comparison.
    std::vector<std::pair<QByteArray, qsizetype>> keys;
    keys.reserve(size_t(found.size()));
    for (qsizetype i = 0; i < found.size(); ++i)
        keys.emplace_back(found.at(i).fileName().toUtf8(), i);
    std::sort(keys.begin(), keys.end());
    QFileInfoList files;
    files.reserve(found.size());
    for (const auto& key : keys)
        files.append(found.at(key.second));
    return files;
}
