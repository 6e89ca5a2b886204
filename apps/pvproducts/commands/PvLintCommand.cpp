#include "PvFindingReport.h"
#include "PvProductLinter.h"
#include "PvToolContext.h"
#include "PvToolOptions.h"

#include <QFileInfo>

namespace {
const QCommandLineOption formatOption(QStringLiteral("format"), QStringLiteral("Output format: gcc (default), json or sarif (SARIF 2.1.0)."),
                                      QStringLiteral("format"), QStringLiteral("gcc"));
const QCommandLineOption strictOption(QStringLiteral("strict"), QStringLiteral("Warnings fail the run too."));

int lint(PvToolContext& context)
{
    PvFindingReport::Format format = PvFindingReport::Gcc;
    const QString formatName = context.parser.isSet(PvToolOptions::json()) ? QStringLiteral("json") : context.parser.value(formatOption);
    if (formatName == QLatin1String("json"))
        format = PvFindingReport::Json;
    else if (formatName == QLatin1String("sarif"))
        format = PvFindingReport::Sarif;
    else if (formatName != QLatin1String("gcc"))
        return context.usage(QStringLiteral("unknown format \"%1\"; use gcc, json or sarif").arg(formatName));

    const QStringList paths = context.arguments();
    for (const QString& path : paths) {
        if (!QFileInfo::exists(path))
            return context.usage(QStringLiteral("no such file or directory: %1").arg(path));
    }
    PvProductLinter linter(context.dataRoot);
    if (paths.isEmpty())
        linter.lintCatalogue();
    else
        linter.lintPaths(paths);
    const QList<PvDiagnostic> findings = linter.findings();
    PvFindingReport(findings, linter.fileCount()).print(context.out, format);
    const int errors = PvProductLinter::count(findings, PvDiagnostic::Error);
    const int warnings = PvProductLinter::count(findings, PvDiagnostic::Warning);
    return errors > 0 || (context.parser.isSet(strictOption) && warnings > 0) ? PvToolContext::Findings : PvToolContext::Success;
}
}

PvCommand pvLintCommand()
{
    return { QStringLiteral("lint"), QStringLiteral("lint [PATH...] [--strict] [--format gcc|json|sarif]"),
             QStringLiteral("Checks product files, \"colors.xml\" and \".ts\" translation files: the given files and directories, or every file "
                            "of the data root. Exit status 1 on errors (on warnings too with --strict)."),
             { PvToolOptions::json(), formatOption, strictOption }, &lint };
}
