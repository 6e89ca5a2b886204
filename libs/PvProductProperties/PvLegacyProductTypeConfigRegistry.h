#pragma once

#include "PvProductTypeConfigRegistryAbstract.h"
#include "PvSingleton.h"
#include "PvXMLRewriterStrategy.h"
#include "pvproductproperties_export.h"

/*!
 * The retired product types, from the legacy products directory, with the product that
 * replaces each and how an old project is converted. Loaded completely on first use,
 * independently of PvProductTypeConfigRegistry.
 */
class PVPRODUCTPROPERTIES_EXPORT PvLegacyProductTypeConfigRegistry : public PvProductTypeConfigRegistryAbstract,
                                                                     public PvSingleton<PvLegacyProductTypeConfigRegistry>
{
public:
    [[nodiscard]] QList<QDir> supervisedDirs() const override;

    //! The current product that replaces \a type; empty for a type that is not retired here.
    [[nodiscard]] PvProductType replacedByProduct(const PvProductType& type) const;
    //! How a project of \a type is rewritten; none for a type that is not retired here.
    [[nodiscard]] PvXMLRewriterStrategy conversionStrategy(const PvProductType& type) const;

private:
    friend class PvSingleton<PvLegacyProductTypeConfigRegistry>;
    PvLegacyProductTypeConfigRegistry();
};
