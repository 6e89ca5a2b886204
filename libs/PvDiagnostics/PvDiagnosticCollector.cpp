#include "PvDiagnosticCollector.h"

#include <algorithm>
#include <atomic>

namespace {
thread_local PvDiagnosticCollector* currentCollector = nullptr;
// Reading a thread-local of another library costs a call; this counter spares it while no
// collector exists at all, which is how the application loads.
std::atomic<int> collectorCount { 0 };
}

PvDiagnosticCollector::PvDiagnosticCollector()
    : m_previous(currentCollector)
{
    currentCollector = this;
    collectorCount.fetch_add(1, std::memory_order_relaxed);
}

PvDiagnosticCollector::~PvDiagnosticCollector()
{
    currentCollector = m_previous;
    collectorCount.fetch_sub(1, std::memory_order_relaxed);
}

bool PvDiagnosticCollector::anyExists()
{
    return collectorCount.load(std::memory_order_relaxed) > 0;
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
