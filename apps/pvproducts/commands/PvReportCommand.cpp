#include "PvToolContext.h"
#include "report/PvCatalogueReport.h"

#include <QFileInfo>

namespace {
const QCommandLineOption outOption(QStringLiteral("out"), QStringLiteral("The directory to write the report to; created when missing."), QStringLiteral("dir"));

int report(PvToolContext& context)
{
    if (!context.arguments().isEmpty())
        return context.usage(QStringLiteral("report takes no product type; it covers every product"));
    if (!context.parser.isSet(outOption) || context.parser.value(outOption).isEmpty())
        return context.usage(QStringLiteral("report needs --out DIR"));
    const QString outPath = context.parser.value(outOption);
    if (QFileInfo(outPath).exists() && !QFileInfo(outPath).isDir())
        return context.usage(QStringLiteral("%1 is no directory").arg(outPath));
    const QDir out(outPath);
    if (!out.mkpath(QStringLiteral("."))) {
        context.err << "pvproducts: cannot create " << outPath << '\n';
        return PvToolContext::Findings;
    }
    const PvCatalogueReport report(context.dataRoot);
    const QStringList problems = report.write(out);
    for (const QString& problem : problems)
        context.err << "pvproducts: " << problem << '\n';
    context.out << "wrote " << out.filePath(QStringLiteral("index.html")) << " (" << report.products().size() << " products)\n";
    return problems.isEmpty() ? PvToolContext::Success : PvToolContext::Findings;
}
}

PvCommand pvReportCommand()
{
    return { QStringLiteral("report"), QStringLiteral("report --out DIR"),
             QStringLiteral("Writes a static HTML catalogue to DIR: an index grouped by article class and a page per product with its "
                            "picture, spiral strip, lint findings and facts. Exit status 1 when a file cannot be written."),
             { outOption }, &report };
}
