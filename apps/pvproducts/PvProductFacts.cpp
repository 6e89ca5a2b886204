#include "PvProductFacts.h"

#include "PvDescriptionJson.h"
#include "PvJsonOutput.h"
#include "PvLegacyProductTypeConfigRegistry.h"
#include "PvProductSources.h"
#include "PvProductTypeConfigRegistry.h"
#include "PvProductTypeDescription.h"

namespace {
QJsonArray relative(const QStringList& files)
{
    QJsonArray array;
    for (const QString& file : files)
        array.append(PvJsonOutput::displayPath(file));
    return array;
}
}

PvProductFacts PvProductFacts::find(const PvProductType& type, const PvProductSources& sources)
{
    PvProductFacts facts;
    if (PvProductTypeConfigRegistry::instance().allProducts().contains(type)) {
        facts.description = PvProductTypeConfigRegistry::instance().description(type);
        facts.files = sources.files(type.name());
    } else if (PvLegacyProductTypeConfigRegistry::instance().allProducts().contains(type)) {
        facts.description = PvLegacyProductTypeConfigRegistry::instance().description(type);
        facts.legacy = true;
        facts.files = QStringList { sources.legacyFile(type.name()) };
    }
    return facts;
}

QJsonObject PvProductFacts::json() const
{
    if (!description)
        return {};
    QJsonObject object = PvDescriptionJson::describe(*description);
    const QJsonArray fileArray = relative(files);
    object.insert(QStringLiteral("file"), fileArray.isEmpty() ? QJsonValue(QString()) : fileArray.first());
    object.insert(QStringLiteral("replaces"), fileArray.size() > 1 ? relative(files.mid(1)) : QJsonArray());
    object.insert(QStringLiteral("legacy"), legacy);
    return object;
}
