#include "PvProductTypeDescriptionReader.h"

#include "PvPlatformIndependent.h"
#include "PvProductTypeDescription.h"
#include "PvXMLLoader.h"

#include <QDebug>

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
    // No name filter: product files are recognised by their content, not their names.
    const QFileInfoList files = PvPlatformIndependent::instance().getDirectFilesInDirectoryAsFileInfos(m_dir, {});
    for (const QFileInfo& file : files) {
        PvProductTypeDescription* description = readFile(file);
        if (!description)
            continue;
        PvProductTypeDescription*& entry = result[description->productType()];
        delete entry;
        entry = description;
    }
    return result;
}

PvProductTypeDescription* PvProductTypeDescriptionReader::readFile(const QFileInfo& fileInfo) const
{
    const QDomElement root = PvXMLLoader::loadDocumentElement(fileInfo);
    if (root.isNull()) {
        qWarning() << "could not open" << fileInfo.absoluteFilePath();
        return nullptr;
    }
    return new PvProductTypeDescription(root.firstChildElement(QStringLiteral("product")));
}

QStringList PvProductTypeDescriptionReader::fileFilter()
{
    return { QStringLiteral("*.xml") };
}
