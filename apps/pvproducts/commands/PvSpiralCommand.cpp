#include "PvProductTypeConfigRegistry.h"
#include "PvSpiralStrip.h"
#include "PvToolContext.h"

namespace {
const QCommandLineOption outOption(QStringLiteral("out"), QStringLiteral("The PNG file to write."), QStringLiteral("file"));
const QCommandLineOption verticalOption(QStringLiteral("vertical"), QStringLiteral("Render the strip for a vertical edge."));

int spiral(PvToolContext& context)
{
    const QStringList arguments = context.arguments();
    if (arguments.size() != 1)
        return context.usage(QStringLiteral("spiral needs one product type"));
    if (!context.parser.isSet(outOption))
        return context.usage(QStringLiteral("spiral needs --out FILE.png"));
    const PvProductTypeConfigRegistry& registry = PvProductTypeConfigRegistry::instance();
    const PvProductType type(arguments.at(0));
    if (!registry.allProducts().contains(type))
        return context.unknownType(type.name());
    QString whyNot;
    const QImage strip = PvSpiralStrip::render(*registry.description(type), context.parser.isSet(verticalOption) ? Qt::Vertical : Qt::Horizontal, &whyNot);
    if (strip.isNull()) {
        context.err << "pvproducts: " << whyNot << '\n';
        return PvToolContext::Findings;
    }
    const QString out = context.parser.value(outOption);
    if (!strip.save(out, "PNG")) {
        context.err << "pvproducts: cannot write " << out << '\n';
        return PvToolContext::Findings;
    }
    context.out << "wrote " << out << " (" << strip.width() << " x " << strip.height() << ")\n";
    return PvToolContext::Success;
}
}

PvCommand pvSpiralCommand()
{
    return { QStringLiteral("spiral"), QStringLiteral("spiral TYPE --out FILE.png [--vertical]"),
             QStringLiteral("Renders the spiral strip of the product's first surrounding with a spiral."), { outOption, verticalOption }, &spiral };
}
