#pragma once

#include "PvDiagnostic.h"

#include <QList>
#include <QString>

//! Findings of "lint" as HTML.
namespace PvHtmlFindings {
//! A table of file, line, column, severity and message (with its "did you mean"); a sentence for none.
[[nodiscard]] QString table(const QList<PvDiagnostic>& findings);
//! "2 errors, 1 warning", or "no findings".
[[nodiscard]] QString counts(const QList<PvDiagnostic>& findings);
}
