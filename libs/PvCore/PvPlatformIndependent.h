#pragma once

#include "PvSingleton.h"
#include "pvcore_export.h"

#include <QDir>
#include <QFileInfoList>
#include <QStringList>

/*! File system services that differ between operating systems. */
class PVCORE_EXPORT PvPlatformIndependent : public PvSingleton<PvPlatformIndependent>
{
public:
    /*!
     * The regular, non-hidden files directly inside \a dir, sorted byte-wise by file name
     * so that every platform lists them alike. An empty filter list means every file.
     */
    [[nodiscard]] QFileInfoList getDirectFilesInDirectoryAsFileInfos(const QDir& dir, const QStringList& nameFilters) const;

private:
    friend class PvSingleton<PvPlatformIndependent>;
    PvPlatformIndependent() = default;
};
