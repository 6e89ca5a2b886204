// The benchmark suite: loading against parsing, and the editor's queries. Prints two tables;
// --benchmark_out=FILE.json keeps every figure in Google Benchmark's own format as well.
#include "PvBenchWarnings.h"
#include "PvTableReporter.h"

#include "PvDirectoryConfig.h"
#include "PvLocaleAndTranslationManager.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>

#include <benchmark/benchmark.h>

int main(int argc, char* argv[])
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    QCoreApplication app(argc, argv);
    // Colours and category translations from the sample catalogue; English, so that category
    // names are really translated.
    PvDirectoryConfig::instance().setDataRoot(QDir(QStringLiteral(PV_SAMPLE_DATA)));
    PvLocaleAndTranslationManager::instance().setLocale(QLocale(QLocale::English, QLocale::UnitedKingdom));
    PvBenchWarnings::install();

    PvTableReporter table;
    benchmark::RunSpecifiedBenchmarks(&table);
    benchmark::Shutdown();
    return 0;
}
