#pragma once

#include <QJsonObject>
#include <QStringList>

class PvProductTypeDescription;

/*!
 * Everything a product type description holds, as JSON: the answers of the library, in the
 * order of the product file. Field types agree with "list --json" (strings for enumerations,
 * numbers for counts, booleans for flags).
 */
namespace PvDescriptionJson {
QJsonObject describe(const PvProductTypeDescription& description);
//! The keys of describe() in the order people read them.
const QStringList& order();
}
