#include "PvJsonOutput.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>

#include <algorithm>

void PvJsonOutput::print(QTextStream& out, const QJsonValue& value)
{
    const QJsonDocument document = value.isArray() ? QJsonDocument(value.toArray()) : QJsonDocument(value.toObject());
    out << document.toJson(QJsonDocument::Indented);
}

QString PvJsonOutput::plain(const QJsonValue& value)
{
    QString text;
    switch (value.type()) {
    case QJsonValue::Bool:
        return yesNo(value.toBool());
    case QJsonValue::Double:
        return QString::number(value.toDouble());
    case QJsonValue::Array: {
        QStringList items;
        for (const QJsonValue& item : value.toArray())
            items.append(item.isObject() ? QString::fromUtf8(QJsonDocument(item.toObject()).toJson(QJsonDocument::Compact)) : plain(item));
        text = items.join(QStringLiteral(", "));
        break;
    }
    default:
        text = value.toString();
    }
    return text.isEmpty() ? QStringLiteral("-") : text;
}

void PvJsonOutput::printObject(QTextStream& out, const QJsonObject& object, const QStringList& order, int indent)
{
    const QString pad(indent, QLatin1Char(' '));
    for (const QString& key : order.isEmpty() ? object.keys() : order) {
        const QJsonValue value = object.value(key);
        if (value.isObject()) {
            out << pad << key << ":\n";
            printObject(out, value.toObject(), QStringList(), indent + 2);
        } else if (value.isArray() && std::any_of(value.toArray().cbegin(), value.toArray().cend(), [](const QJsonValue& v) { return v.isObject(); })) {
            out << pad << key << ":\n";
            for (const QJsonValue& item : value.toArray()) {
                out << pad << "  -\n";
                printObject(out, item.toObject(), QStringList(), indent + 4);
            }
        } else {
            out << pad << key << ": " << plain(value) << '\n';
        }
    }
}

QJsonArray PvJsonOutput::intArray(const QList<int>& values)
{
    QJsonArray array;
    for (int value : values)
        array.append(value);
    return array;
}

QString PvJsonOutput::yesNo(bool value)
{
    return value ? QStringLiteral("yes") : QStringLiteral("no");
}

QString PvJsonOutput::displayPath(const QString& path)
{
    if (path.isEmpty())
        return path;
    const QString absolute = QFileInfo(path).absoluteFilePath();
    const QString relative = QDir::current().relativeFilePath(absolute);
    return relative.startsWith(QLatin1String("..")) ? absolute : relative;
}

QStringList PvJsonOutput::sortedNames(const PvProductTypeList& types)
{
    QStringList names;
    for (const PvProductType& type : types)
        names.append(type.name());
    std::sort(names.begin(), names.end());
    return names;
}
