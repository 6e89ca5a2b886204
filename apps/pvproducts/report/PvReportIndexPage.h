#pragma once

#include "PvDiagnostic.h"

#include <QList>
#include <QString>

struct PvReportProduct;

/*!
 * The first page of the catalogue report: the loaded products grouped by article class, the
 * retired products, and the findings in files that define no product.
 */
namespace PvReportIndexPage {
[[nodiscard]] QString html(const QString& dataRoot, const QList<PvReportProduct>& products, const QList<PvDiagnostic>& otherFindings);
}
