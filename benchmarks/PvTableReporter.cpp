#include "PvTableReporter.h"

#include <cstdio>
#include <string>

namespace {
// The bounds that loading is held to: the ratio load / parse and heap per description
// against its file's size, each with its target and the limit never to cross.
constexpr double ratioTarget = 1.15;
constexpr double ratioLimit = 1.25;
constexpr double heapTarget = 1.0;
constexpr double heapLimit = 2.0;

double counter(const benchmark::BenchmarkReporter::Run& run, const char* name)
{
    const auto it = run.counters.find(name);
    return it == run.counters.end() ? 0 : it->second.value;
}

std::string kilobytes(double bytes)
{
    char text[32];
    std::snprintf(text, sizeof text, bytes >= 10 * 1024 * 1024 ? "%.0f MB" : bytes >= 1024 * 1024 ? "%.1f MB" : "%.1f KB",
                  bytes >= 1024 * 1024 ? bytes / (1024 * 1024) : bytes / 1024);
    return text;
}

std::string duration(double nanoseconds)
{
    char text[32];
    if (nanoseconds < 1e3)
        std::snprintf(text, sizeof text, "%.1f ns", nanoseconds);
    else if (nanoseconds < 1e6)
        std::snprintf(text, sizeof text, "%.2f µs", nanoseconds / 1e3);
    else
        std::snprintf(text, sizeof text, "%.2f ms", nanoseconds / 1e6);
    return text;
}

const char* verdict(double value, double target, double limit)
{
    return value <= target ? "ok" : value <= limit ? "above target" : "ABOVE LIMIT";
}
}

bool PvTableReporter::ReportContext(const Context& context)
{
    std::fprintf(stderr, "Running on %d CPUs; the tables follow when every benchmark has run.\n", context.cpu_info.num_cpus);
    return true;
}

void PvTableReporter::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs) {
        if (run.error_occurred) {
            ++m_failures;
            std::fprintf(stderr, "%s failed: %s\n", run.benchmark_name().c_str(), run.error_message.c_str());
        } else if (run.run_name.function_name == "Load") {
            m_loads.push_back(run);
            std::fprintf(stderr, "  loaded %s files\n", run.run_name.args.c_str());
        } else if (run.run_type == Run::RT_Aggregate && run.aggregate_name == "median") {
            m_queries.push_back(run);
        }
    }
}

void PvTableReporter::Finalize()
{
    printLoadTable();
    printQueryTable();
    if (m_failures)
        std::printf("\n%d benchmark(s) failed, see above.\n", m_failures);
}

void PvTableReporter::printLoadTable() const
{
    if (m_loads.empty())
        return;
    std::printf("\nLoading generated catalogues: CPU time of the loading thread, median of the repetitions;\n"
                "the ratio load/parse of each repetition pair, its median and range, and the same in wall time;\n"
                "floor: parsing and the least reading any reader needs (every element's tag, attributes and\n"
                "text, read once) against the parse\n\n");
    std::printf("%6s %10s %9s %9s %6s %11s %6s %6s %13s %13s %10s %10s %9s  %s\n", "files", "total", "parse ms", "load ms", "ratio", "ratio range", "floor", "wall",
                "parse µs/file", "load µs/file", "heap/desc", "file size", "heap/file", "verdict (ratio, heap)");
    int warnings = 0;
    for (const Run& run : m_loads) {
        const double ratio = counter(run, "ratio");
        const double heapPerFile = counter(run, "heap_per_file_size");
        char range[32];
        std::snprintf(range, sizeof range, "%.2f-%.2f", counter(run, "ratio_min"), counter(run, "ratio_max"));
        // A sanitizer's allocator does not report through mallinfo2(): no heap figures then.
        const bool heapKnown = counter(run, "heap_per_description") > 0;
        char heapRatio[16] = "n/a";
        if (heapKnown)
            std::snprintf(heapRatio, sizeof heapRatio, "%.2f", heapPerFile);
        std::printf("%6.0f %10s %9.1f %9.1f %6.2f %11s %6.2f %6.2f %13.1f %13.1f %10s %10s %9s  %s, %s\n", counter(run, "files"),
                    kilobytes(counter(run, "bytes")).c_str(), counter(run, "parse_ms"), counter(run, "load_ms"), ratio, range, counter(run, "floor"),
                    counter(run, "ratio_wall"),
                    counter(run, "parse_us_per_file"), counter(run, "load_us_per_file"),
                    heapKnown ? kilobytes(counter(run, "heap_per_description")).c_str() : "n/a", kilobytes(counter(run, "mean_file_size")).c_str(),
                    heapRatio, verdict(ratio, ratioTarget, ratioLimit), heapKnown ? verdict(heapPerFile, heapTarget, heapLimit) : "n/a");
        warnings += int(counter(run, "warnings"));
    }
    std::printf("\nTargets: ratio load/parse <= %.2f (never above %.2f); heap per description <= %.0fx its file size (never above %.0fx).\n",
                ratioTarget, ratioLimit, heapTarget, heapLimit);
    std::printf("Warnings during the loads: %d%s\n", warnings, warnings ? " (the figures include writing them)" : "");
}

void PvTableReporter::printQueryTable() const
{
    if (m_queries.empty())
        return;
    std::printf("\nQueries on a loaded catalogue of 1000 files: CPU time, median of 5 runs\n\n");
    std::printf("%-40s %14s\n", "query", "time per call");
    for (const Run& run : m_queries) {
        const double nanoseconds = run.GetAdjustedCPUTime() * 1e9 / benchmark::GetTimeUnitMultiplier(run.time_unit);
        std::printf("%-40s %14s", run.run_name.function_name.c_str(), duration(nanoseconds).c_str());
        const double itemsPerSecond = counter(run, "items_per_second");
        if (itemsPerSecond > 0)
            std::printf("   (%s per page)", duration(1e9 / itemsPerSecond).c_str());
        std::printf("\n");
    }
}
