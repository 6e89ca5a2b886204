#pragma once

#include "PvInitializerAbstract.h"
#include "pvproductproperties_export.h"

/*!
 * The library's start-up hook: creates the product type registry and makes it one of the
 * application's product checkers. Registered with PvInitializer when the library is loaded.
 */
class PVPRODUCTPROPERTIES_EXPORT PvProductPropertiesInitializer : public PvInitializerAbstract
{
public:
    //! Creates the product type registry and registers it as a product checker.
    void setup(PvInitializerOption option) override;
    //! Nothing: the registries live until the process ends.
    void teardown() override;
};
