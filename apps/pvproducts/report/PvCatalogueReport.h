#pragma once

#include "PvReportProduct.h"

#include <QDir>
#include <QList>
#include <QStringList>

/*!
 * A static HTML catalogue of a data root: an index page and a page per product, loaded and
 * retired, with what "show", "lint", "spiral" and "draw" say about it. Readable offline;
 * no scripts.
 */
class PvCatalogueReport
{
public:
    //! Collects the products the registries loaded from \a dataRoot and lints its files.
    explicit PvCatalogueReport(const QDir& dataRoot);

    //! Writes the report into \a out, which must exist; answers what could not be written.
    [[nodiscard]] QStringList write(const QDir& out) const;

    [[nodiscard]] const QList<PvReportProduct>& products() const { return m_products; }
    //! Findings in files that define no product: colours, translations, unreadable files.
    [[nodiscard]] const QList<PvDiagnostic>& otherFindings() const { return m_otherFindings; }

private:
    void assignFindings(const QList<PvDiagnostic>& findings);

    QDir m_dataRoot;
    QList<PvReportProduct> m_products;
    QList<PvDiagnostic> m_otherFindings;
};
