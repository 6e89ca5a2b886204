#pragma once

#include "PvSingleton.h"
#include "pvcore_export.h"

#include <QDir>
#include <QList>
#include <QMutex>
#include <QString>

/*!
 * Where the application keeps its data. setDataRoot() lays everything out by convention
 * below one folder; the individual setters override single places. Until configured, the
 * data root is the environment variable PV_DATA_ROOT, or "data" in the working directory.
 */
class PVCORE_EXPORT PvDirectoryConfig : public PvSingleton<PvDirectoryConfig>
{
public:
    void setDataRoot(const QDir& root);
    void setProductsDir(bool updates, const QDir& dir);
    void setResourceDir(const QDir& dir);
    void setThumbnailsDir(const QDir& dir);
    void setThematicTranslationDirs(const QList<QDir>& dirs);

    //! The products directory: true asks for the updates, which are searched first.
    [[nodiscard]] QDir productsDir(bool updates) const;
    //! The path of a resource below the resource directory; the flag is accepted and ignored.
    [[nodiscard]] QString resource(const QString& name, bool flag = false) const;
    [[nodiscard]] QDir resourceDir() const;
    [[nodiscard]] QDir thumbnailsDir() const;
    [[nodiscard]] QList<QDir> thematicTranslationDirs() const;

private:
    friend class PvSingleton<PvDirectoryConfig>;
    PvDirectoryConfig();

    mutable QMutex m_mutex;
    QDir m_productsUpdates;
    QDir m_products;
    QDir m_resources;
    QDir m_thumbnails;
    QList<QDir> m_translations;
};
