#pragma once

#include "PvDiagnostic.h"
#include "PvProductFileVocabulary.h"
#include "PvSourcePositions.h"

#include <QDir>
#include <QDomElement>
#include <QFileInfo>
#include <QHash>
#include <QList>
#include <QSet>
#include <QString>

#include <optional>

/*!
 * Checks the files of a catalogue. What the library reports while it loads them comes first
 * and unchanged (one truth for loader and checker); the linter adds only what the loader
 * cannot know: names the library never reads, references to other files, and the colour and
 * translation files. Positions are moved from where a DOM start tag ends to its start or to
 * the attribute concerned.
 */
class PvProductLinter
{
public:
    //! \a dataRoot gives the context: the products that "replacedBy" may name, the thumbnails.
    explicit PvProductLinter(const QDir& dataRoot);

    //! Every file of the data root: product, update and legacy directories, colours, translations.
    void lintCatalogue();
    //! The files and directories given; answers false and reports nothing for a missing one.
    void lintPaths(const QStringList& paths);

    //! The findings, sorted by file, line and column.
    [[nodiscard]] QList<PvDiagnostic> findings() const;
    [[nodiscard]] int fileCount() const { return m_fileCount; }
    [[nodiscard]] static int count(const QList<PvDiagnostic>& findings, PvDiagnostic::Severity severity);

private:
    enum class Kind { Products, Legacy };

    void lintProductDirectory(const QDir& dir, Kind kind);
    void lintProductFile(const QFileInfo& file, Kind kind);
    void lintColors(const QFileInfo& file);
    void lintTranslations(const QFileInfo& file);
    void lintPath(const QFileInfo& path);

    //! Loads the file as the library does and keeps what it reports.
    void addLibraryDiagnostics(QList<PvDiagnostic> diagnostics);
    //! Opens \a file for the linter's own checks; null when the library already said why not.
    QDomElement open(const QFileInfo& file);

    void lintElement(const QDomElement& element, const QString& path);
    void lintAttributes(const QDomElement& element, const PvElementRule& rule);
    void lintValue(const QDomElement& element, const QString& attribute, PvValueKind kind, const QString& text);
    void lintProduct(const QDomElement& product, Kind kind);
    void lintSpiralPictures(const QDomElement& spirals);

    void report(const QDomElement& element, PvDiagnostic::Severity severity, const QString& message, const QString& attribute = QString(),
                const QString& suggestion = QString(), const QString& found = QString());
    void reportFile(PvDiagnostic::Severity severity, const QString& message);

    QDir m_dataRoot;
    QSet<QString> m_knownProducts;
    QStringList m_thumbnails;
    QList<PvDiagnostic> m_findings;
    struct Reference {
        PvDiagnostic place;
        QString product;
    };
    QList<Reference> m_references;
    int m_fileCount = 0;
    QString m_file;
    QString m_text;
    std::optional<PvSourcePositions> m_positions;
};
