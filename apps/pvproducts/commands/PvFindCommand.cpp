#include "PvJsonOutput.h"
#include "PvProductTypeConfigRegistry.h"
#include "PvToolContext.h"
#include "PvToolOptions.h"

namespace {
int find(PvToolContext& context)
{
    PvEmptyMeansAllSet<PvArticleClass> classes;
    PvEmptyMeansAllSet<PvCoverType> covers;
    QString bad;
    if (!PvJsonOutput::decodeEach(context.parser.value(PvToolOptions::articleClass()), classes, bad))
        return context.usage(QStringLiteral("unknown article class \"%1\"").arg(bad));
    if (!PvJsonOutput::decodeEach(context.parser.value(PvToolOptions::cover()), covers, bad))
        return context.usage(QStringLiteral("unknown cover type \"%1\"").arg(bad));

    const PvProductTypeConfigRegistry& registry = PvProductTypeConfigRegistry::instance();
    QStringList names;
    QString note;
    if (classes.isEmpty() && covers.isEmpty()) {
        // The library answers an empty set, which its callers read as every product.
        names = PvJsonOutput::sortedNames(registry.allProducts());
    } else {
        const PvEmptyMeansAllSet<PvProductType> found = registry.findProducts(classes, covers);
        names = PvJsonOutput::sortedNames(PvProductTypeList(found.cbegin(), found.cend()));
        if (names.isEmpty())
            note = QStringLiteral("Nothing matches. The library answers an empty set, which its callers read as every product.");
    }
    if (context.parser.isSet(PvToolOptions::json())) {
        QJsonObject object { { QStringLiteral("products"), QJsonArray::fromStringList(names) } };
        if (!note.isEmpty())
            object.insert(QStringLiteral("note"), note);
        PvJsonOutput::print(context.out, object);
    } else {
        for (const QString& name : std::as_const(names))
            context.out << name << '\n';
        if (!note.isEmpty())
            context.out << note << '\n';
    }
    return PvToolContext::Success;
}
}

PvCommand pvFindCommand()
{
    return { QStringLiteral("find"), QStringLiteral("find [--class C] [--cover C]"),
             QStringLiteral("The product types of the given article classes and cover types; every product type without a filter."),
             { PvToolOptions::json(), PvToolOptions::articleClass(), PvToolOptions::cover() }, &find };
}
