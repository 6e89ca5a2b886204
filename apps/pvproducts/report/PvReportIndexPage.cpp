#include "PvReportIndexPage.h"

#include "PvHtml.h"
#include "PvHtmlFindings.h"
#include "PvProductTypeDescription.h"
#include "PvReportProduct.h"

#include <QMap>

namespace {
QString entry(const PvReportProduct& product)
{
    const PvProductTypeDescription& d = *product.facts.description;
    const QString cover = d.coverType().encodeCSV();
    QStringList about { cover.isEmpty() ? QString() : QStringLiteral("cover: ") + cover, d.isValid() ? QString() : QStringLiteral("invalid"),
                        PvHtmlFindings::counts(product.findings) };
    about.removeAll(QString());
    return QStringLiteral("<li>%1 <span class=\"counts\">%2</span></li>\n")
        .arg(PvHtml::link(PvReportLayout::productPage(product.stem), product.title()), PvHtml::escape(about.join(QStringLiteral(" · "))));
}

QString group(const QString& title, const QList<const PvReportProduct*>& products)
{
    QString html = PvHtml::element("h2", title) + QStringLiteral("\n<ul class=\"products\">\n");
    for (const PvReportProduct* product : products)
        html += entry(*product);
    return html + QStringLiteral("</ul>\n");
}
}

QString PvReportIndexPage::html(const QString& dataRoot, const QList<PvReportProduct>& products, const QList<PvDiagnostic>& otherFindings)
{
    // Sorted by class text; a product of no class comes first, under its own heading.
    QMap<QString, QList<const PvReportProduct*>> byClass;
    QList<const PvReportProduct*> retired;
    for (const PvReportProduct& product : products) {
        if (product.facts.legacy)
            retired.append(&product);
        else
            byClass[product.facts.description->articleClass().encodeCSV()].append(&product);
    }
    QString body = PvHtml::element("h1", QStringLiteral("Product catalogue")) + QLatin1Char('\n');
    body += PvHtml::element("p", QStringLiteral("%1 products from %2, %3 of them retired.").arg(QString::number(products.size()), dataRoot, QString::number(retired.size())))
        + QLatin1Char('\n');
    for (auto it = byClass.cbegin(); it != byClass.cend(); ++it)
        body += group(it.key().isEmpty() ? QStringLiteral("Without article class") : it.key(), it.value());
    if (!retired.isEmpty())
        body += group(QStringLiteral("Retired products"), retired);
    body += QStringLiteral("<section id=\"other-findings\">\n<h2>Findings in other files</h2>\n%1</section>\n").arg(PvHtmlFindings::table(otherFindings));
    return PvHtml::page(QStringLiteral("Product catalogue"), PvReportLayout::stylesheet(), body);
}
