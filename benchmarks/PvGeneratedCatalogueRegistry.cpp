#include "PvGeneratedCatalogueRegistry.h"

PvGeneratedCatalogueRegistry::PvGeneratedCatalogueRegistry(const QDir& dir)
    : m_dir(dir)
{
    load();
}

QList<QDir> PvGeneratedCatalogueRegistry::supervisedDirs() const
{
    return { m_dir };
}
