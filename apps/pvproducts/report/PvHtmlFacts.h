#pragma once

#include <QJsonObject>
#include <QStringList>

/*!
 * The facts of "show" as HTML: the same keys in the same order, nested objects as nested
 * definition lists, lists of records as numbered lists, values in their text form.
 */
namespace PvHtmlFacts {
//! A definition list of \a object, its keys in \a order (all keys, sorted, when empty).
[[nodiscard]] QString definitionList(const QJsonObject& object, const QStringList& order = QStringList());
}
