#pragma once

#include "PvDiagnostic.h"
#include "PvProductFacts.h"

#include <QList>
#include <QString>

//! One product of the catalogue report: what "show" and "lint" say about it, and its file stem.
struct PvReportProduct {
    QString name;
    PvProductFacts facts;
    //! The stem of its page, picture and strip, safe as a file name.
    QString stem;
    //! The findings in the files that define it.
    QList<PvDiagnostic> findings;

    //! The name to show; a file may define a product without a name.
    [[nodiscard]] QString title() const { return name.isEmpty() ? QStringLiteral("(no name)") : name; }
};

//! Where the report keeps its files, relative to its directory.
namespace PvReportLayout {
inline QString productPage(const QString& stem) { return QStringLiteral("products/") + stem + QStringLiteral(".html"); }
inline QString picture(const QString& stem) { return QStringLiteral("pictures/") + stem + QStringLiteral(".png"); }
inline QString spiralStrip(const QString& stem) { return QStringLiteral("spirals/") + stem + QStringLiteral(".png"); }
inline QString index() { return QStringLiteral("index.html"); }
inline QString stylesheet() { return QStringLiteral("report.css"); }
}
