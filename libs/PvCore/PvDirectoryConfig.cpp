#include "PvDirectoryConfig.h"

PvDirectoryConfig::PvDirectoryConfig()
{
    const QString root = qEnvironmentVariable("PV_DATA_ROOT");
    setDataRoot(QDir(root.isEmpty() ? QDir::current().filePath(QStringLiteral("data")) : root));
}

void PvDirectoryConfig::setDataRoot(const QDir& root)
{
    QMutexLocker locker(&m_mutex);
    m_productsUpdates = QDir(root.filePath(QStringLiteral("products-updates")));
    m_products = QDir(root.filePath(QStringLiteral("products")));
    m_resources = QDir(root.filePath(QStringLiteral("resources")));
    m_thumbnails = QDir(root.filePath(QStringLiteral("thumbnails")));
    m_translations = { QDir(root.filePath(QStringLiteral("translations"))) };
}

void PvDirectoryConfig::setProductsDir(bool updates, const QDir& dir)
{
    QMutexLocker locker(&m_mutex);
    (updates ? m_productsUpdates : m_products) = dir;
}

void PvDirectoryConfig::setResourceDir(const QDir& dir)
{
    QMutexLocker locker(&m_mutex);
    m_resources = dir;
}

void PvDirectoryConfig::setThumbnailsDir(const QDir& dir)
{
    QMutexLocker locker(&m_mutex);
    m_thumbnails = dir;
}

void PvDirectoryConfig::setThematicTranslationDirs(const QList<QDir>& dirs)
{
    QMutexLocker locker(&m_mutex);
    m_translations = dirs;
}

QDir PvDirectoryConfig::productsDir(bool updates) const
{
    QMutexLocker locker(&m_mutex);
    return updates ? m_productsUpdates : m_products;
}

QString PvDirectoryConfig::resource(const QString& name, bool) const
{
    QMutexLocker locker(&m_mutex);
    return m_resources.filePath(name);
}

QDir PvDirectoryConfig::resourceDir() const
{
    QMutexLocker locker(&m_mutex);
    return m_resources;
}

QDir PvDirectoryConfig::thumbnailsDir() const
{
    QMutexLocker locker(&m_mutex);
    return m_thumbnails;
}

QList<QDir> PvDirectoryConfig::thematicTranslationDirs() const
{
    QMutexLocker locker(&m_mutex);
    return m_translations;
}
