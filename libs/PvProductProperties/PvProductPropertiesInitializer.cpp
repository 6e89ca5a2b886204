#include "PvProductPropertiesInitializer.h"

#include "PvInitializer.h"
#include "PvProductCheckerRegistry.h"
#include "PvProductTypeConfigRegistry.h"

namespace {
PvProductPropertiesInitializer theInitializer;
const bool registered = [] {
    PvInitializer::instance().registerInitializer(&theInitializer);
    return true;
}();
}

void PvProductPropertiesInitializer::setup(PvInitializerOption)
{
    PvProductCheckerRegistry& checkers = PvProductCheckerRegistry::instance();
    checkers.registerChecker(&PvProductTypeConfigRegistry::instance());
}

// The registries live until the process ends, so there is nothing to release.
void PvProductPropertiesInitializer::teardown()
{
}
