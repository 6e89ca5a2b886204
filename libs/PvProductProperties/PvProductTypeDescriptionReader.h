#pragma once

#include "PvProductType.h"
#include "pvproductproperties_export.h"

#include <QDir>
#include <QDomElement>
#include <QFileInfo>
#include <QHash>
#include <QList>
#include <QStringList>

class PvProductTypeDescription;

/*!
 * Turns the product files of one products directory into product type descriptions. It
 * knows nothing of other directories; merging them is the registry's business.
 */
class PVPRODUCTPROPERTIES_EXPORT PvProductTypeDescriptionReader
{
public:
    //! A reader of the product files directly inside \a dir.
    explicit PvProductTypeDescriptionReader(const QDir& dir);
    virtual ~PvProductTypeDescriptionReader();

    /*!
     * One description per loadable file of the directory, keyed by product type; the caller
     * owns them. Every file is tried, whatever its name; when two files declare the same
     * product type, the one later in file-name order wins.
     */
    [[nodiscard]] QHash<PvProductType, PvProductTypeDescription*> readDir() const;
    /*!
     * The descriptions readDir() answers, owned by the caller as well, listed in the order of
     * the files that first declared their product types. A caller that walks them all takes
     * this: readDir()'s hash has room for 100000 entries, and walking it costs as much as
     * walking that many.
     */
    [[nodiscard]] QList<PvProductTypeDescription*> readDescriptions() const;
    /*!
     * A new description from the first "product" element of the file, owned by the caller;
     * null with a warning when the file does not load as XML. A file without a "product"
     * element still yields a description, with every value at its default.
     */
    [[nodiscard]] PvProductTypeDescription* readFile(const QFileInfo& fileInfo) const;
    //! The name filter of product files, for callers that list them themselves.
    [[nodiscard]] static QStringList fileFilter();

private:
    static void reportFile(const QFileInfo& fileInfo, const QDomElement& root, const PvProductTypeDescription& description);
    static void reportReplaced(const QFileInfo& fileInfo, const PvProductTypeDescription& description);

    QDir m_dir;
};
