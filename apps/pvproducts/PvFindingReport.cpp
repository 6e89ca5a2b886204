#include "PvFindingReport.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QUrl>

namespace {
int count(const QList<PvDiagnostic>& findings, PvDiagnostic::Severity severity)
{
    return int(std::count_if(findings.cbegin(), findings.cend(), [severity](const PvDiagnostic& f) { return f.severity == severity; }));
}

QJsonObject artifact(const QString& file)
{
    // Relative paths stay relative, so that review tools resolve them against the checkout.
    const QString uri = QDir::isRelativePath(file) ? QString::fromUtf8(QUrl::toPercentEncoding(file, "/")) : QUrl::fromLocalFile(file).toString();
    return QJsonObject { { QStringLiteral("uri"), uri } };
}

QJsonObject region(int line, int column)
{
    return QJsonObject { { QStringLiteral("startLine"), line }, { QStringLiteral("startColumn"), column } };
}
}

PvFindingReport::PvFindingReport(const QList<PvDiagnostic>& findings, int fileCount)
    : m_findings(findings)
    , m_fileCount(fileCount)
{
}

QString PvFindingReport::line(const PvDiagnostic& f)
{
    return f.toString();
}

void PvFindingReport::print(QTextStream& out, Format format) const
{
    switch (format) {
    case Json:
        out << QJsonDocument(json()).toJson(QJsonDocument::Indented);
        return;
    case Sarif:
        out << QJsonDocument(sarif()).toJson(QJsonDocument::Indented);
        return;
    case Gcc:
        for (const PvDiagnostic& f : m_findings)
            out << line(f) << '\n';
        out << m_fileCount << " files checked: " << count(m_findings, PvDiagnostic::Error) << " errors, " << count(m_findings, PvDiagnostic::Warning)
            << " warnings\n";
        return;
    }
}

QJsonObject PvFindingReport::json() const
{
    QJsonArray array;
    for (const PvDiagnostic& f : m_findings) {
        QJsonObject object { { QStringLiteral("file"), f.file }, { QStringLiteral("line"), f.line }, { QStringLiteral("column"), f.column },
                             { QStringLiteral("severity"), PvDiagnostic::severityName(f.severity) }, { QStringLiteral("message"), f.message } };
        if (!f.suggestion.isEmpty())
            object.insert(QStringLiteral("suggestion"), f.suggestion);
        array.append(object);
    }
    return QJsonObject { { QStringLiteral("findings"), array }, { QStringLiteral("files"), m_fileCount },
                         { QStringLiteral("errors"), count(m_findings, PvDiagnostic::Error) },
                         { QStringLiteral("warnings"), count(m_findings, PvDiagnostic::Warning) } };
}

QJsonObject PvFindingReport::fix(const PvDiagnostic& f)
{
    // The misspelt text is looked up from the finding's place onward on its line.
    QFile file(f.file);
    if (f.found.isEmpty() || f.suggestion.isEmpty() || !file.open(QIODevice::ReadOnly))
        return {};
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    for (int l = f.line - 1; l >= 0 && l < lines.size() && l < f.line + 4; ++l) {
        const qsizetype at = lines.at(l).indexOf(f.found, l == f.line - 1 ? f.column - 1 : 0);
        if (at < 0)
            continue;
        QJsonObject deleted = region(l + 1, int(at) + 1);
        deleted.insert(QStringLiteral("endColumn"), int(at + f.found.size()) + 1);
        const QJsonObject replacement { { QStringLiteral("deletedRegion"), deleted },
                                        { QStringLiteral("insertedContent"), QJsonObject { { QStringLiteral("text"), f.suggestion } } } };
        const QJsonObject change { { QStringLiteral("artifactLocation"), artifact(f.file) },
                                   { QStringLiteral("replacements"), QJsonArray { replacement } } };
        return QJsonObject { { QStringLiteral("description"), QJsonObject { { QStringLiteral("text"), QStringLiteral("Replace with \"%1\"").arg(f.suggestion) } } },
                             { QStringLiteral("artifactChanges"), QJsonArray { change } } };
    }
    return {};
}

QJsonObject PvFindingReport::sarif() const
{
    QJsonArray results;
    for (const PvDiagnostic& f : m_findings) {
        QString text = f.message;
        if (!f.suggestion.isEmpty())
            text += QStringLiteral(" (did you mean \"%1\"?)").arg(f.suggestion);
        const QJsonObject location { { QStringLiteral("physicalLocation"),
                                       QJsonObject { { QStringLiteral("artifactLocation"), artifact(f.file) }, { QStringLiteral("region"), region(f.line, f.column) } } } };
        QJsonObject result { { QStringLiteral("ruleId"), f.category.isEmpty() ? QStringLiteral("pvproducts.lint") : f.category },
                             { QStringLiteral("level"), PvDiagnostic::severityName(f.severity) },
                             { QStringLiteral("message"), QJsonObject { { QStringLiteral("text"), text } } },
                             { QStringLiteral("locations"), QJsonArray { location } } };
        const QJsonObject proposed = fix(f);
        if (!proposed.isEmpty())
            result.insert(QStringLiteral("fixes"), QJsonArray { proposed });
        results.append(result);
    }
    const QJsonObject driver { { QStringLiteral("name"), QStringLiteral("pvproducts") },
                               { QStringLiteral("version"), QCoreApplication::applicationVersion() } };
    const QJsonObject run { { QStringLiteral("tool"), QJsonObject { { QStringLiteral("driver"), driver } } }, { QStringLiteral("results"), results } };
    return QJsonObject { { QStringLiteral("$schema"), QStringLiteral("https://json.schemastore.org/sarif-2.1.0.json") },
                         { QStringLiteral("version"), QStringLiteral("2.1.0") },
                         { QStringLiteral("runs"), QJsonArray { run } } };
}
