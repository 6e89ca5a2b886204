#pragma once

#include <benchmark/benchmark.h>

#include <vector>

/*!
 * Prints the benchmarks as two tables once all have run: loading against parsing per
 * catalogue size, with the targets, and the median time of each query.
 */
class PvTableReporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

private:
    void printLoadTable() const;
    void printQueryTable() const;

    std::vector<Run> m_loads;
    std::vector<Run> m_queries;
    int m_failures = 0;
};
