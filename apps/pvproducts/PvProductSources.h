#pragma once

#include <QDir>
#include <QHash>
#include <QStringList>

/*!
 * Which files define each product type, in the order the registries read them: the file
 * that won first, then the files it replaced (a later file of the same directory wins, and
 * "products-updates" wins over "products").
 */
class PvProductSources
{
public:
    explicit PvProductSources(const QDir& dataRoot);

    //! The files of \a productType, the winner first; empty for an unknown type.
    [[nodiscard]] QStringList files(const QString& productType) const { return m_files.value(productType); }
    //! The file of a retired product in the legacy directory, or empty.
    [[nodiscard]] QString legacyFile(const QString& productType) const { return m_legacy.value(productType).value(0); }

private:
    static QHash<QString, QStringList> read(const QList<QDir>& dirs);

    QHash<QString, QStringList> m_files;
    QHash<QString, QStringList> m_legacy;
};
