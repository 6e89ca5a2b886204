// Several product files into a registry load, then every registry query. The input is split
// at each line "--8<--"; part i becomes file "NN.xml" (NN = i) in "products" for an even i and
// in "products-updates" (searched first) for an odd one, at most 16 parts.

#include "PvFuzzSupport.h"

#include "PvProductClassificationManager.h"
#include "PvProductTypeConfigRegistryAbstract.h"
#include "PvProductTypeDescription.h"

#include <QFile>

namespace {
constexpr int maxFiles = 16;

class FuzzRegistry : public PvProductTypeConfigRegistryAbstract
{
public:
    explicit FuzzRegistry(const QList<QDir>& dirs)
        : m_dirs(dirs)
    {
        load();
    }
    QList<QDir> supervisedDirs() const override { return m_dirs; }

private:
    QList<QDir> m_dirs;
};

QList<QDir> writeFiles(const QByteArray& input)
{
    const QDir root = PvFuzz::dataRoot();
    const QList<QDir> dirs { QDir(root.filePath(QStringLiteral("products-updates"))), QDir(root.filePath(QStringLiteral("products"))) };
    for (const QDir& dir : dirs) {
        QDir(dir).removeRecursively();
        root.mkpath(dir.path());
    }
    const QList<QByteArray> parts = input.split('\n');
    QByteArray file;
    int index = 0;
    auto flush = [&] {
        QFile out(dirs.at(index % 2 == 0 ? 1 : 0).filePath(QStringLiteral("%1.xml").arg(index, 2, 10, QLatin1Char('0'))));
        if (out.open(QIODevice::WriteOnly))
            out.write(file);
        file.clear();
        ++index;
    };
    for (const QByteArray& line : parts) {
        if (line == "--8<--" && index < maxFiles - 1) {
            flush();
            continue;
        }
        file += line + '\n';
    }
    flush();
    return dirs;
}

void queryClassifications(const FuzzRegistry& registry, const PvProductType& type)
{
    const PvProductClassificationManager manager = registry.createProductClassifationManager(registry.articleClass(type));
    const PvDistanceUnit unit { PvDistanceUnitEnum(3) };
    (void)manager.classificationName(type, unit);
    const PvProductClassificationGroup group = manager.classificationGroup(type);
    (void)registry.findAllIn(group);
    for (const QString& name : manager.classificationNames(group, unit)) {
        (void)manager.type(group, name, unit);
        (void)manager.closestProduct(type, name);
    }
    (void)manager.classificationGroups();
}

void queryPages(const FuzzRegistry& registry, const PvProductType& type)
{
    for (const int count : PvFuzz::pageCounts()) {
        (void)registry.productionNumberingList(type, count);
        const PvPageTypeList pages = registry.pageTypes(type, count);
        QList<QString> fileNames;
        for (int i = 0; i < qMax(count, 0); ++i)
            fileNames.append(QString::number(i));
        (void)registry.sortPageFileNameListInInternOrder(type, fileNames);
    }
    QList<PvPageType> pageTypes { PvPageType() };
    for (const PvPageType& pageType : registry.description(type)->pageTypes())
        if (!pageTypes.contains(pageType))
            pageTypes.append(pageType);
    for (const PvPageType& pageType : pageTypes) {
        (void)registry.thereIsOnlyOneAllowedBackgroundCategory(type, pageType);
        for (const PvJigType& jig : PvFuzz::jigTypes()) {
            (void)registry.limitJigCategories(type, pageType, jig);
            (void)registry.allowedJigCategories(type, pageType, jig);
        }
    }
}

void queryType(const FuzzRegistry& registry, const PvProductType& type)
{
    (void)registry.isValid(type), (void)registry.exists(type), (void)registry.horizontalPages(type);
    (void)registry.fullBackgroundOnEachPage(type);
    const PvArticleClass articleClass = registry.articleClass(type);
    (void)registry.hasArticleClass(type, articleClass);
    for (const auto& variant : registry.variants(type).variants())
        (void)registry.isValidBoxStyle(type, PvArticleVariants(variant.id));
    (void)registry.isValidBoxStyle(type, PvArticleVariants());
    const PvProductTypeDescription* description = registry.description(type);
    (void)registry.findProducts(PvEmptyMeansAllSet<PvArticleClass>::decompose(articleClass),
                                PvEmptyMeansAllSet<PvCoverType>::decompose(description->coverType()));
    queryPages(registry, type);
    queryClassifications(registry, type);
}
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    PvFuzz::initialize();
    const QList<QDir> dirs = writeFiles(PvFuzz::bytes(data, size));
    const qint64 before = PvFuzz::heapInUse();
    const FuzzRegistry registry(dirs);
    // The files together are no larger than one product file may be.
    PvFuzz::checkHeldMemory(before, 16, "the loaded registry");
    PvProductTypeList types = registry.allProducts();
    (void)registry.allAvailableProducts(), (void)registry.firstValidProduct(types), (void)registry.voidDescription();
    (void)registry.findProducts({}, {});
    types.append(PvProductType());
    types.append(PvProductType(QStringLiteral("no-such-product")));
    for (const PvProductType& type : types)
        queryType(registry, type);
    return 0;
}
