// Loading a catalogue into a registry against the bare DOM parse of the same files, measured
// side by side in one run so that the ratio holds on a busy machine.
#include "PvBareDomParse.h"
#include "PvBenchWarnings.h"
#include "PvGeneratedCatalogue.h"
#include "PvGeneratedCatalogueRegistry.h"

#include <QElapsedTimer>

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <algorithm>
#include <vector>

namespace {
double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

// Bytes that malloc has handed out and not taken back, large blocks included.
qint64 heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return qint64(info.uordblks + info.hblkhd);
}

// Fewer repetitions for larger catalogues keep a run short; enough for a median.
int repetitions(int count)
{
    return count <= 100 ? 21 : count <= 1000 ? 9 : 5;
}

struct Sample
{
    double parseSeconds = 0;
    double loadSeconds = 0;
    qint64 heapBytes = 0;
    bool complete = false;
};

double timeParse(const QDir& dir, int count, bool* complete)
{
    QElapsedTimer timer;
    timer.start();
    const int parsed = PvBareDomParse::parseDirectory(dir);
    const double seconds = double(timer.nsecsElapsed()) / 1e9;
    *complete = *complete && parsed == count;
    return seconds;
}

// The registry stays alive until its heap is counted.
double timeLoad(const QDir& dir, int count, qint64* heapBytes, bool* complete)
{
    const qint64 before = heapInUse();
    QElapsedTimer timer;
    timer.start();
    const PvGeneratedCatalogueRegistry registry(dir);
    const double seconds = double(timer.nsecsElapsed()) / 1e9;
    *heapBytes = heapInUse() - before;
    *complete = *complete && registry.allProducts().size() == count;
    return seconds;
}

// Alternates which of the two runs first, so that neither always meets a warmer cache.
Sample measure(const QDir& dir, int count, bool parseFirst)
{
    Sample sample;
    sample.complete = true;
    if (parseFirst)
        sample.parseSeconds = timeParse(dir, count, &sample.complete);
    sample.loadSeconds = timeLoad(dir, count, &sample.heapBytes, &sample.complete);
    if (!parseFirst)
        sample.parseSeconds = timeParse(dir, count, &sample.complete);
    return sample;
}

void loadVersusParse(benchmark::State& state)
{
    const int count = int(state.range(0));
    const PvGeneratedCatalogue& catalogue = PvGeneratedCatalogue::cached(count);
    if (!catalogue.isValid()) {
        state.SkipWithError("cannot write the generated catalogue");
        return;
    }
    const int warningsBefore = PvBenchWarnings::count();
    // Untimed: fills the file cache and the process-wide tables (enumerations, categories,
    // translations) that only the first load of a process builds.
    (void)measure(catalogue.dir(), count, true);

    std::vector<double> parse;
    std::vector<double> load;
    std::vector<double> ratio;
    std::vector<double> heap;
    for (auto _ : state) {
        for (int i = 0; i < repetitions(count); ++i) {
            const Sample sample = measure(catalogue.dir(), count, i % 2 == 0);
            if (!sample.complete) {
                state.SkipWithError("not every generated file loaded");
                return;
            }
            parse.push_back(sample.parseSeconds);
            load.push_back(sample.loadSeconds);
            ratio.push_back(sample.loadSeconds / sample.parseSeconds);
            heap.push_back(double(sample.heapBytes));
        }
        state.SetIterationTime(median(load));
    }
    const double files = count;
    state.counters["files"] = files;
    state.counters["bytes"] = double(catalogue.bytes());
    state.counters["parse_ms"] = median(parse) * 1e3;
    state.counters["load_ms"] = median(load) * 1e3;
    // The ratio of each repetition's own pair: both saw the same machine load.
    state.counters["ratio"] = median(ratio);
    state.counters["ratio_min"] = *std::min_element(ratio.begin(), ratio.end());
    state.counters["ratio_max"] = *std::max_element(ratio.begin(), ratio.end());
    state.counters["parse_us_per_file"] = median(parse) * 1e6 / files;
    state.counters["load_us_per_file"] = median(load) * 1e6 / files;
    state.counters["heap_per_description"] = median(heap) / files;
    state.counters["mean_file_size"] = double(catalogue.bytes()) / files;
    state.counters["heap_per_file_size"] = median(heap) / double(catalogue.bytes());
    state.counters["repetitions"] = double(parse.size());
    state.counters["warnings"] = PvBenchWarnings::count() - warningsBefore;
}
}

BENCHMARK(loadVersusParse)->Name("Load")->Arg(100)->Arg(1000)->Arg(5000)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);
