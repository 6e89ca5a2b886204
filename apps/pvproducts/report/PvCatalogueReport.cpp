#include "PvCatalogueReport.h"

#include "PvHtml.h"
#include "PvJsonOutput.h"
#include "PvLegacyProductTypeConfigRegistry.h"
#include "PvProductLinter.h"
#include "PvProductSources.h"
#include "PvProductTypeConfigRegistry.h"
#include "PvReportFileNames.h"
#include "PvReportIndexPage.h"
#include "PvReportProductPage.h"

#include <QHash>

PvCatalogueReport::PvCatalogueReport(const QDir& dataRoot)
    : m_dataRoot(dataRoot)
{
    const PvProductSources sources(dataRoot);
    PvReportFileNames names;
    const auto add = [&](const PvProductTypeList& types, bool legacy) {
        for (const QString& name : PvJsonOutput::sortedNames(types)) {
            PvReportProduct product;
            product.name = name;
            product.facts = PvProductFacts::find(PvProductType(name), sources);
            // A name both loaded and retired is shown as loaded, as "show" does; once is enough.
            if (!product.facts.description || product.facts.legacy != legacy)
                continue;
            product.stem = names.stem(name);
            m_products.append(product);
        }
    };
    add(PvProductTypeConfigRegistry::instance().allProducts(), false);
    add(PvLegacyProductTypeConfigRegistry::instance().allProducts(), true);

    PvProductLinter linter(dataRoot);
    linter.lintCatalogue();
    assignFindings(linter.findings());
}

void PvCatalogueReport::assignFindings(const QList<PvDiagnostic>& findings)
{
    // The linter names files as the user would type them; so do the products' sources.
    QHash<QString, int> productOfFile;
    for (int i = 0; i < m_products.size(); ++i) {
        for (const QString& file : m_products.at(i).facts.files)
            productOfFile.insert(PvJsonOutput::displayPath(file), i);
    }
    for (const PvDiagnostic& finding : findings) {
        const auto it = productOfFile.constFind(finding.file);
        if (it == productOfFile.cend())
            m_otherFindings.append(finding);
        else
            m_products[*it].findings.append(finding);
    }
}

QStringList PvCatalogueReport::write(const QDir& out) const
{
    QStringList problems;
    for (const char* folder : { "products", "pictures", "spirals" }) {
        if (!out.mkpath(QLatin1String(folder)))
            return { QStringLiteral("cannot create %1").arg(out.filePath(QLatin1String(folder))) };
    }
    const QString css = PvHtml::write(out.filePath(PvReportLayout::stylesheet()), PvHtml::stylesheet());
    if (!css.isEmpty())
        problems.append(css);
    for (const PvReportProduct& product : m_products)
        problems += PvReportProductPage::write(out, product);
    const QString index = PvHtml::write(out.filePath(PvReportLayout::index()),
                                        PvReportIndexPage::html(PvJsonOutput::displayPath(m_dataRoot.path()), m_products, m_otherFindings));
    if (!index.isEmpty())
        problems.append(index);
    return problems;
}
