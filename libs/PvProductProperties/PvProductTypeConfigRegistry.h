#pragma once

#include "PvProductTypeConfigRegistryAbstract.h"
#include "PvSingleton.h"
#include "pvproductproperties_export.h"

/*!
 * The product types the application offers, from the products directories of the
 * directory configuration; the updates directory wins over the bundled one. Loaded
 * completely on first use.
 */
class PVPRODUCTPROPERTIES_EXPORT PvProductTypeConfigRegistry : public PvProductTypeConfigRegistryAbstract,
                                                               public PvSingleton<PvProductTypeConfigRegistry>
{
public:
    [[nodiscard]] QList<QDir> supervisedDirs() const override;

private:
    friend class PvSingleton<PvProductTypeConfigRegistry>;
    PvProductTypeConfigRegistry();
};
