#include "PvPictureLayout.h"
#include "PvProductPicture.h"
#include "PvProductTypeConfigRegistry.h"
#include "PvProductTypeDescription.h"
#include "PvToolContext.h"

namespace {
const QCommandLineOption pagesOption(QStringLiteral("pages"), QStringLiteral("The page count of the project to draw (default 24)."), QStringLiteral("n"), QStringLiteral("24"));
const QCommandLineOption outOption(QStringLiteral("out"), QStringLiteral("The picture to write, .png or .svg."), QStringLiteral("file"));

int draw(PvToolContext& context)
{
    const QStringList arguments = context.arguments();
    if (arguments.size() != 1)
        return context.usage(QStringLiteral("draw needs one product type"));
    bool ok = false;
    const int pageCount = context.parser.value(pagesOption).toInt(&ok);
    if (!ok || pageCount < 0 || pageCount > PvPictureLayout::maximumPageCount)
        return context.usage(QStringLiteral("--pages needs a page count from 0 to %1").arg(PvPictureLayout::maximumPageCount));
    const QString out = context.parser.value(outOption);
    if (out.isEmpty() || !PvProductPicture::isSupportedFileName(out))
        return context.usage(QStringLiteral("draw needs --out FILE.png or --out FILE.svg"));
    const PvProductTypeConfigRegistry& registry = PvProductTypeConfigRegistry::instance();
    const PvProductType type(arguments.at(0));
    if (!registry.allProducts().contains(type))
        return context.unknownType(type.name());
    const QString problem = PvProductPicture::write(*registry.description(type), pageCount, out);
    if (!problem.isEmpty()) {
        context.err << "pvproducts: " << problem << '\n';
        return PvToolContext::Findings;
    }
    context.out << "wrote " << out << '\n';
    return PvToolContext::Success;
}
}

PvCommand pvDrawCommand()
{
    return { QStringLiteral("draw"), QStringLiteral("draw TYPE [--pages N] --out FILE.png|FILE.svg"),
             QStringLiteral("Draws the pages of a project of N pages as the product is bound: cover, spreads, labels, surroundings."),
             { pagesOption, outOption }, &draw };
}
