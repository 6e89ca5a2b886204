#pragma once

#include "PvDiagnostic.h"

#include <QJsonObject>
#include <QList>
#include <QTextStream>

/*!
 * Prints findings for people and machines: one line per finding in the form compilers use
 * ("gcc"), a JSON report, or a SARIF 2.1.0 log for code review tools, with each "did you mean"
 * as a fix.
 */
class PvFindingReport
{
public:
    enum Format { Gcc, Json, Sarif };

    PvFindingReport(const QList<PvDiagnostic>& findings, int fileCount);

    void print(QTextStream& out, Format format) const;
    [[nodiscard]] QJsonObject json() const;
    [[nodiscard]] QJsonObject sarif() const;
    //! "file:line:column: severity: message (did you mean "x"?)"
    [[nodiscard]] static QString line(const PvDiagnostic& finding);

private:
    [[nodiscard]] static QJsonObject fix(const PvDiagnostic& finding);

    QList<PvDiagnostic> m_findings;
    int m_fileCount = 0;
};
