#include "PvDirectoryConfig.h"
#include "PvProductTypeConfigRegistry.h"
#include "PvProductTypeDescription.h"
#include "PvToolContext.h"

#include <QImage>

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
    const PvSurroundingDescriptionList surroundings = registry.description(type)->surroundings();
    const auto withSpiral = std::find_if(surroundings.cbegin(), surroundings.cend(),
                                         [](const PvSurroundingDescription& s) { return s.spiralConfig().hasSpiral(); });
    if (withSpiral == surroundings.cend()) {
        context.err << "pvproducts: product type \"" << type.name() << "\" has no surrounding with a spiral\n";
        return PvToolContext::Findings;
    }
    const QImage strip = withSpiral->spiralConfig().spiralImage(context.parser.isSet(verticalOption) ? Qt::Vertical : Qt::Horizontal);
    if (strip.isNull()) {
        context.err << "pvproducts: the spiral strip is empty; is the loop picture \"" << withSpiral->spiralConfig().variant() << "\" in "
                    << PvDirectoryConfig::instance().thumbnailsDir().path() << "?\n";
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
