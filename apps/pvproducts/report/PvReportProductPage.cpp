#include "PvReportProductPage.h"

#include "PvDescriptionJson.h"
#include "PvHtml.h"
#include "PvHtmlFacts.h"
#include "PvHtmlFindings.h"
#include "PvJsonOutput.h"
#include "PvReportPicture.h"
#include "PvReportProduct.h"
#include "PvSpiralStrip.h"
#include "PvToolMessages.h"

#include <QImage>

namespace {
// Pages live one directory below the report's root.
QString fromPage(const QString& path)
{
    return QStringLiteral("../") + path;
}

QString figure(const QString& source, const QString& alternative, const QString& caption)
{
    return QStringLiteral("<figure><img src=\"%1\" alt=\"%2\" />\n<figcaption>%3</figcaption></figure>\n")
        .arg(PvHtml::escape(fromPage(source)), PvHtml::escape(alternative), PvHtml::escape(caption));
}

QString pictureSection(const QDir& out, const PvReportProduct& product)
{
    const PvReportPicture picture = PvReportPicture::choose(*product.facts.description);
    const QString file = PvReportLayout::picture(product.stem);
    const QString whyNot = picture.write(*product.facts.description, out.filePath(file));
    const QString body = whyNot.isEmpty() ? figure(file, QStringLiteral("The pages of %1").arg(product.title()), picture.caption)
                                          : PvHtml::element("p", whyNot, "missing") + QLatin1Char('\n');
    return QStringLiteral("<section id=\"picture\">\n<h2>Pages</h2>\n%1</section>\n").arg(body);
}

QString spiralSection(const QDir& out, const PvReportProduct& product, QStringList& problems)
{
    if (!PvSpiralStrip::hasSpiral(*product.facts.description))
        return {};
    QString whyNot;
    const QImage strip = PvSpiralStrip::render(*product.facts.description, Qt::Horizontal, &whyNot);
    const QString file = PvReportLayout::spiralStrip(product.stem);
    if (!strip.isNull() && !strip.save(out.filePath(file), "PNG")) {
        whyNot = QStringLiteral("cannot write %1").arg(out.filePath(file));
        problems.append(whyNot);
    }
    const QString body = whyNot.isEmpty()
        ? figure(file, QStringLiteral("The spiral strip of %1").arg(product.title()),
                 QStringLiteral("The strip of the first surrounding with a spiral, for a horizontal edge (%1 x %2 pixels).")
                     .arg(QString::number(strip.width()), QString::number(strip.height())))
        : PvHtml::element("p", whyNot, "missing") + QLatin1Char('\n');
    return QStringLiteral("<section id=\"spiral\">\n<h2>Spiral strip</h2>\n%1</section>\n").arg(body);
}
}

QStringList PvReportProductPage::write(const QDir& out, const PvReportProduct& product)
{
    QStringList problems;
    // The library may warn while it builds the page list: say which product.
    PvToolMessages::setSubject(QStringLiteral("product \"%1\" (%2)").arg(product.name, PvJsonOutput::displayPath(product.facts.files.value(0))));
    QString body = QStringLiteral("<nav>%1</nav>\n").arg(PvHtml::link(fromPage(PvReportLayout::index()), QStringLiteral("Catalogue")));
    body += PvHtml::element("h1", product.title()) + QLatin1Char('\n');
    body += pictureSection(out, product);
    body += spiralSection(out, product, problems);
    body += QStringLiteral("<section id=\"findings\">\n<h2>Findings</h2>\n%1</section>\n").arg(PvHtmlFindings::table(product.findings));
    body += QStringLiteral("<section id=\"facts\">\n<h2>Facts</h2>\n%1</section>\n").arg(PvHtmlFacts::definitionList(product.facts.json(), PvDescriptionJson::order()));
    PvToolMessages::setSubject(QString());
    const QString whyNot = PvHtml::write(out.filePath(PvReportLayout::productPage(product.stem)),
                                         PvHtml::page(product.title(), fromPage(PvReportLayout::stylesheet()), body));
    if (!whyNot.isEmpty())
        problems.append(whyNot);
    return problems;
}
