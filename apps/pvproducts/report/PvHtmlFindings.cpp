#include "PvHtmlFindings.h"

#include "PvHtml.h"
#include "PvProductLinter.h"

namespace {
QString counted(int count, const char* singular)
{
    return QStringLiteral("%1 %2%3").arg(QString::number(count), QLatin1String(singular), count == 1 ? QString() : QStringLiteral("s"));
}
}

QString PvHtmlFindings::table(const QList<PvDiagnostic>& findings)
{
    if (findings.isEmpty())
        return QStringLiteral("<p class=\"clean\">No findings.</p>\n");
    QString html = QStringLiteral("<table class=\"findings\">\n<tr><th>File</th><th>Line</th><th>Column</th><th>Severity</th><th>Message</th></tr>\n");
    for (const PvDiagnostic& f : findings) {
        QString message = f.message;
        if (!f.suggestion.isEmpty())
            message += QStringLiteral(" (did you mean \"%1\"?)").arg(f.suggestion);
        const QString severity = PvDiagnostic::severityName(f.severity);
        html += QStringLiteral("<tr>") + PvHtml::element("td", f.file) + PvHtml::element("td", QString::number(f.line))
            + PvHtml::element("td", QString::number(f.column)) + PvHtml::element("td", severity, f.severity == PvDiagnostic::Error ? "error" : "warning")
            + PvHtml::element("td", message) + QStringLiteral("</tr>\n");
    }
    return html + QStringLiteral("</table>\n");
}

QString PvHtmlFindings::counts(const QList<PvDiagnostic>& findings)
{
    if (findings.isEmpty())
        return QStringLiteral("no findings");
    return counted(PvProductLinter::count(findings, PvDiagnostic::Error), "error") + QStringLiteral(", ")
        + counted(PvProductLinter::count(findings, PvDiagnostic::Warning), "warning");
}
