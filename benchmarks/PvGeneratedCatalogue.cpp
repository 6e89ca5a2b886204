#include "PvGeneratedCatalogue.h"

#include "PvCatalogueGenerator.h"

#include <map>
#include <memory>

PvGeneratedCatalogue::PvGeneratedCatalogue(int count)
    : m_count(count)
{
    if (m_dir.isValid())
        m_bytes = PvCatalogueGenerator::write(m_dir.path(), count);
}

bool PvGeneratedCatalogue::isValid() const
{
    return m_bytes >= 0;
}

QDir PvGeneratedCatalogue::dir() const
{
    return QDir(m_dir.path());
}

int PvGeneratedCatalogue::count() const
{
    return m_count;
}

qint64 PvGeneratedCatalogue::bytes() const
{
    return m_bytes;
}

const PvGeneratedCatalogue& PvGeneratedCatalogue::cached(int count)
{
    // Benchmarks run on one thread; the catalogues go when the process ends.
    static std::map<int, std::unique_ptr<PvGeneratedCatalogue>> catalogues;
    std::unique_ptr<PvGeneratedCatalogue>& entry = catalogues[count];
    if (!entry)
        entry = std::make_unique<PvGeneratedCatalogue>(count);
    return *entry;
}
