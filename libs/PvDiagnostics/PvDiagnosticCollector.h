#pragma once

#include "PvDiagnostic.h"
#include "pvdiagnostics_export.h"

#include <QList>
#include <QString>

/*!
 * Gathers the diagnostics that readers report on this thread while it exists. Collectors
 * nest: the newest one gets the reports and hands the thread back to the one before it when
 * it is destroyed. Readers that know the file they read name it with PvDiagnosticFileScope.
 *
 * With no collector and the categories at their default level, reporting costs one
 * thread-local read, so the loader stays as fast when nobody listens.
 */
class PVDIAGNOSTICS_EXPORT PvDiagnosticCollector
{
public:
    PvDiagnosticCollector();
    ~PvDiagnosticCollector();
    PvDiagnosticCollector(const PvDiagnosticCollector&) = delete;
    PvDiagnosticCollector& operator=(const PvDiagnosticCollector&) = delete;

    //! The collector of this thread, or null.
    [[nodiscard]] static PvDiagnosticCollector* current();
    //! Whether any thread has a collector: cheaper to ask than current().
    [[nodiscard]] static bool anyExists();

    //! The file being read; a diagnostic without a file of its own gets this one.
    [[nodiscard]] QString file() const { return m_file; }
    void setFile(const QString& file) { m_file = file; }

    void add(PvDiagnostic diagnostic);
    [[nodiscard]] const QList<PvDiagnostic>& diagnostics() const { return m_diagnostics; }
    [[nodiscard]] QList<PvDiagnostic> takeDiagnostics();
    [[nodiscard]] int count(PvDiagnostic::Severity severity) const;

private:
    QList<PvDiagnostic> m_diagnostics;
    QString m_file;
    PvDiagnosticCollector* m_previous = nullptr;
};

/*!
 * Names the file being read in the current collector for as long as it exists, then gives
 * back the name before it. Does nothing without a collector.
 */
class PVDIAGNOSTICS_EXPORT PvDiagnosticFileScope
{
public:
    explicit PvDiagnosticFileScope(const QString& file);
    ~PvDiagnosticFileScope();
    PvDiagnosticFileScope(const PvDiagnosticFileScope&) = delete;
    PvDiagnosticFileScope& operator=(const PvDiagnosticFileScope&) = delete;

private:
    PvDiagnosticCollector* m_collector;
    QString m_previous;
};
