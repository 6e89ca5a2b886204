#include "PvLegacyProductTypeConfigRegistry.h"

#include "PvDirectoryConfig.h"
#include "PvProductTypeDescription.h"

PvLegacyProductTypeConfigRegistry::PvLegacyProductTypeConfigRegistry()
{
    load();
}

QList<QDir> PvLegacyProductTypeConfigRegistry::supervisedDirs() const
{
    return { QDir(PvDirectoryConfig::instance().resource(QStringLiteral("products/legacy"), false)) };
}

PvProductType PvLegacyProductTypeConfigRegistry::replacedByProduct(const PvProductType& type) const
{
    return description(type)->replacedByProduct();
}

PvXMLRewriterStrategy PvLegacyProductTypeConfigRegistry::conversionStrategy(const PvProductType& type) const
{
    return description(type)->conversionStrategy();
}
