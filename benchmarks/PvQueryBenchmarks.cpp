// The questions the editor asks per page or per user action, on a loaded catalogue.
#include "PvCatalogueGenerator.h"
#include "PvGeneratedCatalogue.h"
#include "PvGeneratedCatalogueRegistry.h"
#include "PvLocaleAndTranslationManager.h"
#include "PvProductTypeDescription.h"
#include "PvThematicCategorySet.h"
#include "PvThematicCategoryTranslationRegistry.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {
constexpr int catalogueSize = 1000;

// Loaded by the first query benchmark, before its timing starts.
const PvGeneratedCatalogueRegistry& registry()
{
    static const PvGeneratedCatalogueRegistry loaded(PvGeneratedCatalogue::cached(catalogueSize).dir());
    return loaded;
}

// A photo book: the shape with the most to answer.
PvProductType photoBook()
{
    return PvProductType(PvCatalogueGenerator::productName(0));
}

QStringList twelveNames()
{
    return QString::fromUtf8("Hochzeit,Urlaub,Familie,Natur,Einfarbig,Baby,Geburtstag,Reisen,Liebe,Frühling,Sommer,Herbst").split(u',');
}

void pageTypes(benchmark::State& state)
{
    const PvGeneratedCatalogueRegistry& loaded = registry();
    const PvProductType type = photoBook();
    const int pages = int(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(loaded.pageTypes(type, pages));
}

void pageAlignment(benchmark::State& state)
{
    const PvProductTypeDescription* description = registry().description(photoBook());
    const PvPageTypeList pages = description->pageTypes(int(state.range(0)));
    for (auto _ : state) {
        for (int index = 0; index < pages.size(); ++index)
            benchmark::DoNotOptimize(description->pageAlignment(pages, index));
    }
    state.SetItemsProcessed(state.iterations() * pages.size());
}

void productionNumberingList(benchmark::State& state)
{
    const PvGeneratedCatalogueRegistry& loaded = registry();
    const PvProductType type = photoBook();
    for (auto _ : state)
        benchmark::DoNotOptimize(loaded.productionNumberingList(type, 24));
}

void allowedJigCategories(benchmark::State& state)
{
    const PvGeneratedCatalogueRegistry& loaded = registry();
    const PvProductType type = photoBook();
    for (auto _ : state)
        benchmark::DoNotOptimize(loaded.allowedJigCategories(type, PvPageType(PvPageTypePage), PvJigType(PvJigTypeBackground)));
}

void findProducts(benchmark::State& state)
{
    const auto classes = PvEmptyMeansAllSet<PvArticleClass>::decompose(PvArticleClass(PvArticleClassPhotobook));
    const auto covers = PvEmptyMeansAllSet<PvCoverType>::decompose(PvCoverType(PvCoverTypeHardcover));
    const PvGeneratedCatalogueRegistry& loaded = registry();
    for (auto _ : state)
        benchmark::DoNotOptimize(loaded.findProducts(classes, covers));
}

void categorySet(benchmark::State& state)
{
    const QStringList names = twelveNames();
    // Untimed: the first sight of a name interns it and reads the translations.
    benchmark::DoNotOptimize(PvThematicCategorySet(names));
    for (auto _ : state)
        benchmark::DoNotOptimize(PvThematicCategorySet(names));
}

void preferredCategory(benchmark::State& state)
{
    const PvThematicCategorySet set(twelveNames());
    // Untimed: the first colour lookup reads the colour file.
    benchmark::DoNotOptimize(set.preferredCategory(false));
    for (auto _ : state)
        benchmark::DoNotOptimize(set.preferredCategory(false));
}

void categoryTranslation(benchmark::State& state)
{
    const PvThematicCategoryTranslationRegistry& translations = PvThematicCategoryTranslationRegistry::instance();
    const QLocale locale = PvLocaleAndTranslationManager::instance().locale();
    const QString name = QStringLiteral("Hochzeit");
    for (auto _ : state)
        benchmark::DoNotOptimize(translations.translation(name, locale));
}

// What every products directory costs before its first file: the application reads an
// updates directory that is often empty.
void loadEmptyDirectory(benchmark::State& state)
{
    const QTemporaryDir empty;
    for (auto _ : state)
        benchmark::DoNotOptimize(PvGeneratedCatalogueRegistry(QDir(empty.path())).allProducts());
}
}

// Short runs, repeated: the median of five resists a neighbour's burst on the machine.
#define PV_QUERY(function, label) \
    BENCHMARK(function)->Name(label)->MinTime(0.1)->Repetitions(5)->ReportAggregatesOnly(true)

PV_QUERY(pageTypes, "pageTypes, 24 pages")->Arg(24);
PV_QUERY(pageTypes, "pageTypes, 200 pages")->Arg(200);
PV_QUERY(pageAlignment, "pageAlignment, every page of 24")->Arg(24);
PV_QUERY(productionNumberingList, "productionNumberingList, 24 pages");
PV_QUERY(allowedJigCategories, "allowedJigCategories");
PV_QUERY(findProducts, "findProducts, photobook hardcover");
PV_QUERY(categorySet, "category set from twelve names");
PV_QUERY(preferredCategory, "preferredCategory");
PV_QUERY(categoryTranslation, "translation of a category name");
PV_QUERY(loadEmptyDirectory, "load of an empty products directory");
