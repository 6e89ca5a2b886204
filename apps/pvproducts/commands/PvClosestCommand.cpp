#include "PvProductClassificationManager.h"
#include "PvProductTypeConfigRegistry.h"
#include "PvToolContext.h"

#include <limits>

namespace {
int closest(PvToolContext& context)
{
    const QStringList arguments = context.arguments();
    if (arguments.size() != 2)
        return context.usage(QStringLiteral("closest needs a product type and a group"));
    const PvProductTypeConfigRegistry& registry = PvProductTypeConfigRegistry::instance();
    const PvProductType type(arguments.at(0));
    if (!registry.allProducts().contains(type))
        return context.unknownType(type.name());
    const PvProductClassificationManager manager = registry.createProductClassifationManager(PvArticleClass(PvArticleClassEnum(std::numeric_limits<qint64>::max())));
    const PvProductType found = manager.closestProduct(type, arguments.at(1));
    if (!found.isValid()) {
        context.err << "pvproducts: no product in group \"" << arguments.at(1) << "\"\n";
        return PvToolContext::Findings;
    }
    context.out << found.name() << '\n';
    return PvToolContext::Success;
}
}

PvCommand pvClosestCommand()
{
    return { QStringLiteral("closest"), QStringLiteral("closest TYPE GROUP"), QStringLiteral("The product of GROUP closest in size to TYPE."), {}, &closest };
}
