#include "PvJsonOutput.h"
#include "PvLegacyProductTypeConfigRegistry.h"
#include "PvProductTypeConfigRegistry.h"
#include "PvTextTable.h"
#include "PvToolContext.h"

namespace {
int legacy(PvToolContext& context)
{
    const QStringList arguments = context.arguments();
    if (arguments.size() > 1)
        return context.usage(QStringLiteral("legacy takes at most one product type"));
    const PvLegacyProductTypeConfigRegistry& registry = PvLegacyProductTypeConfigRegistry::instance();
    QStringList names = PvJsonOutput::sortedNames(registry.allProducts());
    if (arguments.size() == 1) {
        if (!names.contains(arguments.at(0))) {
            if (!PvProductTypeConfigRegistry::instance().allProducts().contains(PvProductType(arguments.at(0))))
                return context.unknownType(arguments.at(0));
            context.err << "pvproducts: product type \"" << arguments.at(0) << "\" is not retired; \"pvproducts show " << arguments.at(0)
                        << "\" describes it\n";
            return PvToolContext::Findings;
        }
        names = QStringList { arguments.at(0) };
    }
    PvTextTable table({ QStringLiteral("NAME"), QStringLiteral("REPLACED BY"), QStringLiteral("CONVERSION") });
    for (const QString& name : std::as_const(names)) {
        const PvProductType type(name);
        const QString strategy = PvJsonOutput::nameOf(registry.conversionStrategy(type));
        table.addRow({ name, registry.replacedByProduct(type).name(), strategy.isEmpty() ? QStringLiteral("-") : strategy });
    }
    table.print(context.out);
    return PvToolContext::Success;
}
}

PvCommand pvLegacyCommand()
{
    return { QStringLiteral("legacy"), QStringLiteral("legacy [TYPE]"), QStringLiteral("Retired products with their replacement and conversion strategy."), {},
             &legacy };
}
