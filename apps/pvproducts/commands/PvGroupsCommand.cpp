#include "PvJsonOutput.h"
#include "PvProductClassificationManager.h"
#include "PvProductTypeConfigRegistry.h"
#include "PvTextTable.h"
#include "PvToolContext.h"
#include "PvToolOptions.h"

#include <limits>
#include <tuple>

namespace {
int groups(PvToolContext& context)
{
    PvEmptyMeansAllSet<PvArticleClass> classes;
    QString bad;
    if (!PvJsonOutput::decodeEach(context.parser.value(PvToolOptions::articleClass()), classes, bad))
        return context.usage(QStringLiteral("unknown article class \"%1\"").arg(bad));
    PvArticleClass mask;
    for (const PvArticleClass& articleClass : classes)
        mask |= articleClass;
    if (classes.isEmpty())
        mask = PvArticleClass(PvArticleClassEnum(std::numeric_limits<qint64>::max())); // every class

    const PvProductClassificationManager manager = PvProductTypeConfigRegistry::instance().createProductClassifationManager(mask);
    // The registry lists products in no particular order; people read groups by name and sizes small to large.
    QList<PvProductClassification> classifications = manager.classifications();
    std::sort(classifications.begin(), classifications.end(), [](const PvProductClassification& a, const PvProductClassification& b) {
        return std::make_tuple(a.group().value(), a.areaSize(), a.productType()) < std::make_tuple(b.group().value(), b.areaSize(), b.productType());
    });
    for (qsizetype i = 0; i < classifications.size();) {
        const PvProductClassificationGroup group = classifications.at(i).group();
        PvTextTable table({ QStringLiteral("  CM"), QStringLiteral("INCH"), QStringLiteral("PRODUCT") });
        for (; i < classifications.size() && classifications.at(i).group() == group; ++i) {
            const PvProductClassification& c = classifications.at(i);
            table.addRow({ QStringLiteral("  ") + c.sizeName(PvDistanceUnit(PvCentimetre)), c.sizeName(PvDistanceUnit(PvInch)), c.productType().name() });
        }
        if (group.value().isEmpty())
            continue;
        context.out << group.value() << " (" << group.visibleDescription() << ")\n";
        table.print(context.out);
    }
    return PvToolContext::Success;
}
}

PvCommand pvGroupsCommand()
{
    return { QStringLiteral("groups"), QStringLiteral("groups [--class C]"), QStringLiteral("Classification groups with their sizes in cm and inch."),
             { PvToolOptions::articleClass() }, &groups };
}
