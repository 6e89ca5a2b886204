#pragma once

#include "pvdiagnostics_export.h"

#include <QDebug>
#include <QString>

/*!
 * One thing a reader skipped, defaulted or could not decode, at its place in a file:
 * line and column are 1-based (1, 1 for the whole file).
 */
struct PVDIAGNOSTICS_EXPORT PvDiagnostic {
    enum Severity { Warning, Error };
    /*!
     * What line and column point at: the exact place of the fault, the start of the file for
     * the whole file, or where a DOM node's start tag ends (all that QDomNode knows; a tool
     * with the text can move it to the start of the tag or to the attribute).
     */
    enum Place { Exact, WholeFile, StartTagEnd };

    QString file;
    int line = 0;
    int column = 0;
    Severity severity = Error;
    //! What was found and what was expected.
    QString message;
    //! The attribute the diagnostic is about; empty when it is about the element or the file.
    QString attribute;
    //! The name or value as written, which \a suggestion would replace.
    QString found;
    //! A known name close to the one written, for "did you mean"; empty when none is near.
    QString suggestion;
    Place place = Exact;
    //! The logging category of the subsystem that reported it, such as "pv.xml".
    QString category;

    //! "file:line:column: severity: message", with the suggestion when there is one.
    [[nodiscard]] QString toString() const;
    [[nodiscard]] static QString severityName(Severity severity);

    friend bool operator==(const PvDiagnostic& a, const PvDiagnostic& b);
};

PVDIAGNOSTICS_EXPORT QDebug operator<<(QDebug debug, const PvDiagnostic& diagnostic);
