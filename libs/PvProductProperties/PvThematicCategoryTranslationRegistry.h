#pragma once

#include "PvAnnotatedLocks.h"
#include "PvSingleton.h"
#include "PvXMLBasedRegistry.h"
#include "pvproductproperties_export.h"

#include <QDomElement>
#include <QHash>
#include <QLocale>
#include <QString>
#include <QStringList>

class PvThematicCategory;
class PvThematicCategorySet;

/*!
 * Translations of thematic category names, read from Qt Linguist ".ts" files of the thematic
 * translation directories (or from the bundled in-memory document) and kept per locale.
 * Translations are only ever added; the files of the language current at creation are loaded
 * when the registry is created.
 */
class PVPRODUCTPROPERTIES_EXPORT PvThematicCategoryTranslationRegistry
    : public PvXMLBasedRegistry
    , public PvSingleton<PvThematicCategoryTranslationRegistry>
{
    Q_OBJECT
public:
    ~PvThematicCategoryTranslationRegistry() override;

    //! Loads the bundled translations plus the download packages' file after a language
    //! change, else every file of the current language.
    bool init() override;
    //! Parses the in-memory ".ts" document of the locale manager.
    bool initFromZIP();
    //! Loads "dlp-categories_<language code>_.ts" from the supervised directories.
    bool loadDLPCategoryTSFiles();

    //! Reads the ".ts" document of \a file; the flag is ignored.
    bool parseXML(const QFileInfo& file, bool reload) override;
    //! Reads one ".ts" document; false (with a warning) when it is not one.
    bool parseXML(const QDomElement& root);
    /*!
     * Reads one ".ts" document into \a localeName and \a translations without adding them;
     * false (with a warning) when it is not one. Reports what it skips when someone listens.
     */
    static bool readTranslations(const QDomElement& root, QString* localeName, QHash<QString, QString>* translations);
    //! Merges \a translations into the table of \a localeName; a source given again replaces.
    void addTranslations(const QString& localeName, const QHash<QString, QString>& translations);

    /*!
     * The translation of \a text in \a locale: looked up with white space simplified, then
     * without "_metallic", then in the default locale of the locale's language; \a text
     * itself when none is found.
     */
    [[nodiscard]] QString translation(const QString& text, const QLocale& locale) const;
    //! The same as translation().
    [[nodiscard]] QString translate(const QString& text, const QLocale& locale) const;
    //! The visible name of \a category in the current locale; master mode appends the
    //! untranslated name in brackets.
    [[nodiscard]] QString humanReadable(const PvThematicCategory& category) const;
    //! The visible names of \a categories, as humanReadable() gives them.
    [[nodiscard]] QStringList toVisibleStringList(const PvThematicCategorySet& categories) const;

    //! The application's thematic translation directories.
    [[nodiscard]] QList<QDir> supervisedDirectories() const override;
    //! Files holding the language code between underscores; the code is the one current at
    //! the first call, for the life of the process.
    [[nodiscard]] QStringList nameFilter() const override;

private:
    friend class PvSingleton<PvThematicCategoryTranslationRegistry>;
    PvThematicCategoryTranslationRegistry();

    mutable PvReadWriteLock m_lock { QReadWriteLock::Recursive };
    QHash<QString, QHash<QString, QString>> m_translations;
};
