#include "PvProductTypeDescriptionReader.h"

#include "PvDiagnosticCollector.h"
#include "PvPlatformIndependent.h"
#include "PvProductDiagnostics.h"
#include "PvProductTypeDescription.h"
#include "PvValuePool.h"
#include "PvXMLLoader.h"

#include <QDebug>

#include <utility>

PvProductTypeDescriptionReader::PvProductTypeDescriptionReader(const QDir& dir)
    : m_dir(dir)
{
}

PvProductTypeDescriptionReader::~PvProductTypeDescriptionReader() = default;

QHash<PvProductType, PvProductTypeDescription*> PvProductTypeDescriptionReader::readDir() const
{
    QHash<PvProductType, PvProductTypeDescription*> result;
    // Generous on purpose: the hash never grows while a directory is read.
    result.reserve(100000);
    for (PvProductTypeDescription* description : readDescriptions())
        result.insert(description->productType(), description);
    return result;
}

QList<PvProductTypeDescription*> PvProductTypeDescriptionReader::readDescriptions() const
{
    // Descriptions of one directory repeat each other's paths and names; they keep one copy.
    const PvValuePool pool;
    // No name filter: product files are recognised by their content, not their names.
    const QFileInfoList files = PvPlatformIndependent::instance().getDirectFilesInDirectoryAsFileInfos(m_dir, {});
    QList<PvProductTypeDescription*> descriptions;
    QHash<PvProductType, qsizetype> positions;
    // A file declares at most one product type, so neither grows while the directory is read.
    descriptions.reserve(files.size());
    positions.reserve(files.size());
    for (const QFileInfo& file : files) {
        PvProductTypeDescription* description = readFile(file);
        if (!description)
            continue;
        const auto known = positions.constFind(description->productType());
        if (known == positions.cend()) {
            positions.insert(description->productType(), descriptions.size());
            descriptions.append(description);
            continue;
        }
        if (PvDiagnostics::isListening(pvProductsLog()))
            reportReplaced(file, *description);
        delete std::exchange(descriptions[*known], description);
    }
    return descriptions;
}

PvProductTypeDescription* PvProductTypeDescriptionReader::readFile(const QFileInfo& fileInfo) const
{
    const PvDiagnosticFileScope scope(fileInfo.filePath());
    const QDomElement root = PvXMLLoader::loadDocumentElement(fileInfo);
    if (root.isNull()) {
        qWarning() << "could not open" << fileInfo.absoluteFilePath();
        return nullptr;
    }
    const QDomElement product = root.firstChildElement(QStringLiteral("product"));
    auto* description = new PvProductTypeDescription(product);
    if (PvDiagnostics::isListening(pvProductsLog()))
        reportFile(fileInfo, root, *description);
    return description;
}

QStringList PvProductTypeDescriptionReader::fileFilter()
{
    return { QStringLiteral("*.xml") };
}

void PvProductTypeDescriptionReader::reportFile(const QFileInfo& fileInfo, const QDomElement& root, const PvProductTypeDescription& description)
{
    using PvDiagnostics::quoted;
    if (fileInfo.suffix() != QLatin1String("xml"))
        PvDiagnostics::reportFile(pvProductsLog(), PvDiagnostic::Error, QStringLiteral("not a \".xml\" file, but read as a product file all the same"));
    const QDomElement product = root.firstChildElement(QStringLiteral("product"));
    if (product.isNull()) {
        PvProductDiagnostics::report(PvDiagnostic::Error, root,
                                     QStringLiteral("no \"product\" element: the file loads as a product with an empty name and default values"));
        return;
    }
    PvProductDiagnostics::checkSingle(root, QStringLiteral("product"));
    // The description reads only the first of each of these.
    for (const char* single : { "pages", "productionnumbering", "pageswithcontent", "contentredirects", "rotationredirects", "defaults",
                                "editorAbilities", "tilt", "classification", "preview3D", "extra_production_pages", "pricelist", "barcodes" })
        PvProductDiagnostics::checkSingle(product, QLatin1String(single));
    if (product.firstChildElement(QStringLiteral("pages")).isNull())
        PvProductDiagnostics::report(PvDiagnostic::Error, product, QStringLiteral("\"product\" has no \"pages\": its page list is one illegal page"));
    if (description.isValid())
        return;
    const QString why = description.articleClass().isValid()
        ? QStringLiteral("\"binding\" must name a cover type (only the class \"prints\" goes without)")
        : QStringLiteral("\"class\" must name exactly one known article class");
    PvProductDiagnostics::report(PvDiagnostic::Error, product,
                                 QStringLiteral("product %1 is not valid: %2").arg(quoted(description.productType().name()), why));
}

void PvProductTypeDescriptionReader::reportReplaced(const QFileInfo& fileInfo, const PvProductTypeDescription& description)
{
    const PvDiagnosticFileScope scope(fileInfo.filePath());
    PvDiagnostics::reportFile(pvProductsLog(), PvDiagnostic::Error, QStringLiteral("product type %1 is defined again in this directory; this file sorts later and replaces the earlier one")
                                                 .arg(PvDiagnostics::quoted(description.productType().name())));
}
