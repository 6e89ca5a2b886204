#include "PvProductTypeConfigRegistry.h"

#include "PvDirectoryConfig.h"

PvProductTypeConfigRegistry::PvProductTypeConfigRegistry()
{
    load();
}

QList<QDir> PvProductTypeConfigRegistry::supervisedDirs() const
{
    const PvDirectoryConfig& config = PvDirectoryConfig::instance();
    return { config.productsDir(true), config.productsDir(false) };
}
