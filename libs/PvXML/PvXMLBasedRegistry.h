#pragma once

#include "pvxml_export.h"

#include <QDir>
#include <QFileInfo>
#include <QList>
#include <QObject>
#include <QStringList>

/*!
 * Base of registries that load every file of one suffix from a list of directories.
 * Derived classes parse one file in parseXML() and say where to look.
 */
class PVXML_EXPORT PvXMLBasedRegistry : public QObject
{
    Q_OBJECT
public:
    //! \a recursive: files in subdirectories of the supervised directories count too.
    PvXMLBasedRegistry(const QString& fileSuffix, bool recursive);
    ~PvXMLBasedRegistry() override;

    //! Loads every file matching nameFilter(), in file-name order; true when any loaded.
    virtual bool init();
    //! Loads the named files from the supervised directories; true when all of them loaded.
    bool loadFiles(const QStringList& fileNames, bool reload);

    [[nodiscard]] QString fileSuffix() const;
    [[nodiscard]] bool isRecursive() const;

    virtual bool parseXML(const QFileInfo& file, bool reload) = 0;
    [[nodiscard]] virtual QList<QDir> supervisedDirectories() const;
    [[nodiscard]] virtual QStringList nameFilter() const;

protected:
    //! Every file below the supervised directories that matches \a filters, sorted by file name.
    [[nodiscard]] QFileInfoList matchingFiles(const QStringList& filters) const;

private:
    QString m_fileSuffix;
    bool m_recursive;
};
