#include "PvDiagnosticCollector.h"

#include <algorithm>

namespace {
thread_local PvDiagnosticCollector* currentCollector = nullptr;
}

PvDiagnosticCollector::PvDiagnosticCollector()
    : m_previous(currentCollector)
{
    currentCollector = this;
}

PvDiagnosticCollector::~PvDiagnosticCollector()
{
    currentCollector = m_previous;
}

PvDiagnosticCollector* PvDiagnosticCollector::current()
{
    return currentCollector;
}

void PvDiagnosticCollector::add(PvDiagnostic diagnostic)
{
    if (diagnostic.file.isEmpty())
        diagnostic.file = m_file;
    m_diagnostics.append(std::move(diagnostic));
}

QList<PvDiagnostic> PvDiagnosticCollector::takeDiagnostics()
{
    return std::exchange(m_diagnostics, {});
}

int PvDiagnosticCollector::count(PvDiagnostic::Severity severity) const
{
    return int(std::count_if(m_diagnostics.cbegin(), m_diagnostics.cend(), [severity](const PvDiagnostic& d) { return d.severity == severity; }));
}

PvDiagnosticFileScope::PvDiagnosticFileScope(const QString& file)
    : m_collector(PvDiagnosticCollector::current())
{
    if (m_collector) {
        m_previous = m_collector->file();
        m_collector->setFile(file);
    }
}

PvDiagnosticFileScope::~PvDiagnosticFileScope()
{
    if (m_collector)
        m_collector->setFile(m_previous);
}
