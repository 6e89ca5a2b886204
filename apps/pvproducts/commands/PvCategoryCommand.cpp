#include "PvTextTable.h"
#include "PvThematicCategory.h"
#include "PvToolContext.h"

#include <QColor>

namespace {
int category(PvToolContext& context)
{
    const QStringList arguments = context.arguments();
    if (arguments.isEmpty())
        return context.usage(QStringLiteral("category needs at least one name"));
    PvTextTable table({ QStringLiteral("KEY"), QStringLiteral("INTERNAL"), QStringLiteral("VISIBLE"), QStringLiteral("COLOUR"),
                        QStringLiteral("SORT KEY"), QStringLiteral("SPOT COLOUR") });
    for (const QString& name : arguments) {
        const PvThematicCategory category(name);
        const QColor color = category.color();
        table.addRow({ QString::number(category.hashValue()), category.internalName(), category.visibleName(),
                       color.isValid() ? color.name() : QStringLiteral("-"), QLatin1Char('"') + category.colorSortKey() + QLatin1Char('"'),
                       QString::number(category.toSpotColor().value()) });
    }
    table.print(context.out);
    return PvToolContext::Success;
}
}

PvCommand pvCategoryCommand()
{
    return { QStringLiteral("category"), QStringLiteral("category NAME..."),
             QStringLiteral("Key, names, colour, colour sort key and spot colour of thematic categories."), {}, &category };
}
