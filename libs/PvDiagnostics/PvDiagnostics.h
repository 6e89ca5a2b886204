#pragma once

#include "PvDiagnostic.h"
#include "pvdiagnostics_export.h"

#include <QByteArray>
#include <QLoggingCategory>
#include <QStringList>

class QDomNode;

//! Reading XML files: files that do not load, and values the typed readers cannot decode.
PVDIAGNOSTICS_EXPORT Q_DECLARE_LOGGING_CATEGORY(pvXmlLog)

/*!
 * How readers report what they skip, default or cannot decode. A report goes to the
 * thread's PvDiagnosticCollector when there is one, else to the reader's logging category at
 * info level (off by default: the loader is lenient on purpose, and the fixed warnings of the
 * library stay where they are).
 */
namespace PvDiagnostics {
//! Whether anyone takes reports: checks that cost time on good input run only then.
[[nodiscard]] PVDIAGNOSTICS_EXPORT bool isListening(const QLoggingCategory& category);

//! Reports at \a node's place; \a attribute names the attribute the report is about.
PVDIAGNOSTICS_EXPORT void report(const QLoggingCategory& category, PvDiagnostic::Severity severity, const QDomNode& node,
                                 const QString& message, const QString& attribute = QString(), const QString& suggestion = QString(),
                                 const QString& found = QString());
//! Reports about the whole file being read.
PVDIAGNOSTICS_EXPORT void reportFile(const QLoggingCategory& category, PvDiagnostic::Severity severity, const QString& message);
//! Reports about the whole file or a place given by 1-based \a line and \a column.
PVDIAGNOSTICS_EXPORT void report(const QLoggingCategory& category, PvDiagnostic diagnostic);

/*!
 * The name of \a known closest to \a text, ignoring case, when it is near enough to be a
 * typo of it (at most one edit per four characters, at least one and at most three; a swap of
 * neighbours is one edit); else empty.
 */
[[nodiscard]] PVDIAGNOSTICS_EXPORT QString closest(const QString& text, const QStringList& known);

/*!
 * Why \a data is not a well-formed XML document, at the place of the fault: "the file is
 * empty", or the tags and lines of a mismatched element, else the parser's own words.
 */
[[nodiscard]] PVDIAGNOSTICS_EXPORT PvDiagnostic xmlError(const QByteArray& data);
//! The same, with the place and words of the DOM parser where nothing more precise is known.
[[nodiscard]] PVDIAGNOSTICS_EXPORT PvDiagnostic xmlError(const QByteArray& data, int line, int column, const QString& message);

//! \a text in double quotes, as every message quotes names and values.
[[nodiscard]] PVDIAGNOSTICS_EXPORT QString quoted(const QString& text);
}
