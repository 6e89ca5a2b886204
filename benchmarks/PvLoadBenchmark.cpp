// Loading a catalogue into a registry against the bare DOM parse of the same files, measured
// side by side in one run so that the ratio holds on a busy machine. The figures are the CPU
// time of this thread: waiting for a core that another process holds is no cost of ours, and
// on a shared machine it would swamp the difference between the two.
#include "PvBareDomParse.h"
#include "PvBlockPool.h"
#include "PvBenchWarnings.h"
#include "PvGeneratedCatalogue.h"
#include "PvGeneratedCatalogueRegistry.h"

#include <QElapsedTimer>

#include <benchmark/benchmark.h>

#include <malloc.h>
#include <time.h>

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

namespace {
double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

double threadSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) + double(now.tv_nsec) / 1e9;
}

// Runs \a work and answers the CPU seconds of this thread and the wall seconds it took.
template<typename Work>
std::pair<double, double> timed(Work work)
{
    QElapsedTimer wall;
    const double start = threadSeconds();
    wall.start();
    work();
    return { threadSeconds() - start, double(wall.nsecsElapsed()) / 1e9 };
}

// Bytes that malloc has handed out and not taken back, large blocks included, less what the
// library's block pool holds unused: blocks freed by an earlier load stay in the pool and are
// taken again, so without this a load would seem to need less than it does.
qint64 heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return qint64(info.uordblks + info.hblkhd) - qint64(PvBlockPool::idleBytes());
}

// Fewer repetitions for larger catalogues keep a run short; enough for a median.
int repetitions(int count)
{
    return count <= 100 ? 21 : count <= 1000 ? 9 : 5;
}

// Seconds of CPU time and of wall time for parsing, for parsing and the least reading, and
// for loading.
struct Sample
{
    std::pair<double, double> parse;
    std::pair<double, double> read;
    std::pair<double, double> load;
    qint64 heapBytes = 0;
    bool complete = true;
};

void parse(const QDir& dir, int count, Sample* sample)
{
    int parsed = 0;
    sample->parse = timed([&] { parsed = PvBareDomParse::parseDirectory(dir); });
    sample->complete = sample->complete && parsed == count;
}

void read(const QDir& dir, int count, const PvBareDomParse::AttributeNames& names, Sample* sample)
{
    int read = 0;
    sample->read = timed([&] { read = PvBareDomParse::readDirectory(dir, names); });
    sample->complete = sample->complete && read == count;
}

void load(const QDir& dir, int count, Sample* sample)
{
    std::unique_ptr<PvGeneratedCatalogueRegistry> registry;
    const qint64 before = heapInUse();
    sample->load = timed([&] { registry = std::make_unique<PvGeneratedCatalogueRegistry>(dir); });
    // Counted while the registry lives; its destruction is not timed.
    sample->heapBytes = heapInUse() - before - qint64(sizeof(PvGeneratedCatalogueRegistry));
    sample->complete = sample->complete && registry->allProducts().size() == count;
}

// Alternates between parse, read, load and the reverse, so that neither the parse nor the
// load always meets a warmer cache.
Sample measure(const QDir& dir, int count, const PvBareDomParse::AttributeNames& names, bool parseFirst)
{
    Sample sample;
    if (parseFirst)
        parse(dir, count, &sample);
    else
        load(dir, count, &sample);
    read(dir, count, names, &sample);
    if (parseFirst)
        load(dir, count, &sample);
    else
        parse(dir, count, &sample);
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
    const PvBareDomParse::AttributeNames names = PvBareDomParse::attributeNames(catalogue.dir());
    // Untimed: fills the file cache and the process-wide tables (enumerations, categories,
    // translations) that only the first load of a process builds.
    (void)measure(catalogue.dir(), count, names, true);

    std::vector<double> parseTimes;
    std::vector<double> loadTimes;
    std::vector<double> ratio;
    std::vector<double> floor;
    std::vector<double> wallRatio;
    std::vector<double> heap;
    for (auto _ : state) {
        for (int i = 0; i < repetitions(count); ++i) {
            const Sample sample = measure(catalogue.dir(), count, names, i % 2 == 0);
            if (!sample.complete) {
                state.SkipWithError("not every generated file loaded");
                return;
            }
            parseTimes.push_back(sample.parse.first);
            loadTimes.push_back(sample.load.first);
            ratio.push_back(sample.load.first / sample.parse.first);
            floor.push_back(sample.read.first / sample.parse.first);
            wallRatio.push_back(sample.load.second / sample.parse.second);
            heap.push_back(double(sample.heapBytes));
        }
        state.SetIterationTime(median(loadTimes));
    }
    const double files = count;
    state.counters["files"] = files;
    state.counters["bytes"] = double(catalogue.bytes());
    state.counters["parse_ms"] = median(parseTimes) * 1e3;
    state.counters["load_ms"] = median(loadTimes) * 1e3;
    // The ratio of each repetition's own pair: both saw the same machine load.
    state.counters["ratio"] = median(ratio);
    state.counters["ratio_min"] = *std::min_element(ratio.begin(), ratio.end());
    state.counters["ratio_max"] = *std::max_element(ratio.begin(), ratio.end());
    // What a loader that only read the documents would score.
    state.counters["floor"] = median(floor);
    // Wall time for reference only: on a shared machine it measures the neighbours too.
    state.counters["ratio_wall"] = median(wallRatio);
    state.counters["parse_us_per_file"] = median(parseTimes) * 1e6 / files;
    state.counters["load_us_per_file"] = median(loadTimes) * 1e6 / files;
    state.counters["heap_per_description"] = median(heap) / files;
    state.counters["mean_file_size"] = double(catalogue.bytes()) / files;
    state.counters["heap_per_file_size"] = median(heap) / double(catalogue.bytes());
    state.counters["repetitions"] = double(parseTimes.size());
    state.counters["warnings"] = PvBenchWarnings::count() - warningsBefore;
}
}

BENCHMARK(loadVersusParse)->Name("Load")->Arg(100)->Arg(1000)->Arg(5000)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);
