#include "PvJsonOutput.h"
#include "PvProductSources.h"
#include "PvProductTypeConfigRegistry.h"
#include "PvProductTypeDescription.h"
#include "PvTextTable.h"
#include "PvToolContext.h"
#include "PvToolOptions.h"

namespace {
int list(PvToolContext& context)
{
    const bool verbose = context.parser.isSet(PvToolOptions::verbose());
    const PvProductSources sources(context.dataRoot);
    const PvProductTypeConfigRegistry& registry = PvProductTypeConfigRegistry::instance();
    QStringList header { QStringLiteral("NAME"), QStringLiteral("CLASS"), QStringLiteral("COVER"), QStringLiteral("VALID"), QStringLiteral("PAGES") };
    if (verbose)
        header << QStringLiteral("FILE") << QStringLiteral("REPLACES");
    PvTextTable table(header);
    QJsonArray array;
    for (const QString& name : PvJsonOutput::sortedNames(registry.allProducts())) {
        const PvProductTypeDescription* d = registry.description(PvProductType(name));
        QStringList row { name, d->articleClass().encodeCSV(), d->coverType().encodeCSV(), PvJsonOutput::yesNo(d->isValid()),
                          QString::number(d->countAbstractPages()) };
        QJsonObject object { { QStringLiteral("name"), name },
                             { QStringLiteral("class"), d->articleClass().encodeCSV() },
                             { QStringLiteral("cover"), d->coverType().encodeCSV() },
                             { QStringLiteral("valid"), d->isValid() },
                             { QStringLiteral("abstractPages"), int(d->countAbstractPages()) } };
        if (verbose) {
            QStringList files = sources.files(name);
            for (QString& file : files)
                file = PvJsonOutput::displayPath(file);
            row << files.value(0, QStringLiteral("-")) << (files.size() > 1 ? files.mid(1).join(QStringLiteral(", ")) : QStringLiteral("-"));
            object.insert(QStringLiteral("file"), files.value(0));
            object.insert(QStringLiteral("replaces"), QJsonArray::fromStringList(files.mid(1)));
        }
        table.addRow(row);
        array.append(object);
    }
    if (context.parser.isSet(PvToolOptions::json()))
        PvJsonOutput::print(context.out, array);
    else
        table.print(context.out);
    return PvToolContext::Success;
}
}

PvCommand pvListCommand()
{
    return { QStringLiteral("list"), QStringLiteral("list [--verbose]"),
             QStringLiteral("Every loaded product type, sorted by name; --verbose adds the file that won and the files it replaces."),
             { PvToolOptions::json(), PvToolOptions::verbose() }, &list };
}
