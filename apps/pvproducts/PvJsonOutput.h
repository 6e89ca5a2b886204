#pragma once

#include "PvEmptyMeansAllSet.h"
#include "PvProductTypeList.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QStringList>
#include <QTextStream>

//! Output helpers shared by the commands: JSON, "key: value" text, names of values.
namespace PvJsonOutput {
void print(QTextStream& out, const QJsonValue& value);
//! The text form of a value for people: lists joined, nothing shown as "-".
QString plain(const QJsonValue& value);
//! "key: value" lines, nested objects indented, keys in \a order (all keys when empty).
void printObject(QTextStream& out, const QJsonObject& object, const QStringList& order, int indent = 0);
QJsonArray intArray(const QList<int>& values);
QString yesNo(bool value);
QStringList sortedNames(const PvProductTypeList& types);
//! A path as the user would type it: relative when below the working directory.
QString displayPath(const QString& path);

//! A value's own name where the table has one (such as "panorama_page"), else its bits.
template <typename Wrapper>
QString nameOf(const Wrapper& wrapper)
{
    const auto& names = wrapper.enumToStringTable()->enumToString;
    const auto it = names.constFind(wrapper.value());
    return it != names.cend() ? *it : wrapper.encodeAsList().join(QLatin1Char('|'));
}

//! Decodes comma-separated names into \a set; false with the first unknown one in \a bad.
template <typename Wrapper>
bool decodeEach(const QString& text, PvEmptyMeansAllSet<Wrapper>& set, QString& bad)
{
    const QStringList parts = text.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString& part : parts) {
        const auto value = Wrapper().enumToStringTable()->decode(part);
        if (!value) {
            bad = part.trimmed();
            return false;
        }
        set.insert(Wrapper(*value));
    }
    return true;
}
}
