#pragma once

#include "pvdiagnostics_export.h"

#include <QDebug>
#include <QString>

/*!
 * One thing a reader skipped, defaulted or could not decode, at its place in a file:
 * line and column are 1-based, 0 when the place is the whole file.
 */
struct PVDIAGNOSTICS_EXPORT PvDiagnostic {
    enum Severity { Warning, Error };

    QString file;
    int line = 0;
    int column = 0;
    Severity severity = Error;
    //! What was found and what was expected.
    QString message;
    //! The attribute the diagnostic is about; empty when it is about the element or the file.
    QString attribute;
    //! A known name close to the one written, for "did you mean"; empty when none is near.
    QString suggestion;
    //! The logging category of the subsystem that reported it, such as "pv.xml".
    QString category;

    //! "file:line:column: severity: message", with the suggestion when there is one.
    [[nodiscard]] QString toString() const;
    [[nodiscard]] static QString severityName(Severity severity);

    friend bool operator==(const PvDiagnostic& a, const PvDiagnostic& b);
};

PVDIAGNOSTICS_EXPORT QDebug operator<<(QDebug debug, const PvDiagnostic& diagnostic);
