#include "PvHtmlFacts.h"

#include "PvHtml.h"
#include "PvJsonOutput.h"

#include <QJsonArray>

#include <algorithm>

namespace {
bool holdsRecords(const QJsonValue& value)
{
    const QJsonArray array = value.toArray();
    return std::any_of(array.cbegin(), array.cend(), [](const QJsonValue& v) { return v.isObject(); });
}
}

QString PvHtmlFacts::definitionList(const QJsonObject& object, const QStringList& order)
{
    QString html = QStringLiteral("<dl>\n");
    for (const QString& key : order.isEmpty() ? object.keys() : order) {
        const QJsonValue value = object.value(key);
        html += PvHtml::element("dt", key);
        if (value.isObject()) {
            html += QStringLiteral("<dd>%1</dd>\n").arg(definitionList(value.toObject()));
        } else if (value.isArray() && holdsRecords(value)) {
            html += QStringLiteral("<dd><ol class=\"records\">\n");
            for (const QJsonValue& item : value.toArray())
                html += QStringLiteral("<li>%1</li>\n").arg(item.isObject() ? definitionList(item.toObject()) : PvHtml::escape(PvJsonOutput::plain(item)));
            html += QStringLiteral("</ol></dd>\n");
        } else {
            html += PvHtml::element("dd", PvJsonOutput::plain(value)) + QLatin1Char('\n');
        }
    }
    return html + QStringLiteral("</dl>\n");
}
