#pragma once

#include "PvProductFileVocabulary.h"
#include "PvSourcePositions.h"

#include <QDir>
#include <QDomElement>
#include <QFileInfo>
#include <QHash>
#include <QList>
#include <QString>

#include <optional>

/*! One thing wrong or suspicious in a product file. */
struct PvLintFinding {
    enum Severity { Warning, Error };
    QString file;
    int line = 0;
    int column = 0;
    Severity severity = Error;
    QString message;
};

/*!
 * Checks product files for what the lenient loader silently turns into defaults: files that
 * do not load, unknown names and enumeration texts, numbers that do not parse, invalid
 * products, duplicates, and references to unknown products.
 */
class PvProductLinter
{
public:
    //! \a productDirs in the order they are searched (first wins), then the legacy directory.
    void lint(const QList<QDir>& productDirs, const QDir& legacyDir);

    [[nodiscard]] QList<PvLintFinding> findings() const { return m_findings; }
    [[nodiscard]] int fileCount() const { return m_fileCount; }
    [[nodiscard]] int count(PvLintFinding::Severity severity) const;

private:
    // Where a product type is defined or named; the documents are gone when these are used.
    struct Place {
        QString file;
        PvSourcePositions::Position position;
        QString product;
    };
    using Definitions = QHash<QString, Place>;

    //! Lints the files of one directory; answers the product types it defines (later file wins).
    Definitions lintDirectory(const QDir& dir);
    void lintFile(const QFileInfo& file, Definitions& definitions);
    void lintElement(const QDomElement& element, const QString& path);
    void lintAttributes(const QDomElement& element, const PvElementRule& rule);
    void lintValue(const QDomElement& element, const QString& attribute, PvValueKind kind, const QString& text);
    void lintPageRange(const QDomElement& element, const QString& attribute, const QString& part, bool strict);
    void lintPreview(const QDomElement& preview);
    void lintValidity(const QDomElement& product);

    //! A finding about \a element of the current file, or about its \a attribute when given.
    void report(const QDomElement& element, PvLintFinding::Severity severity, const QString& message, const QString& attribute = QString());
    void report(const Place& place, PvLintFinding::Severity severity, const QString& message);

    QList<PvLintFinding> m_findings;
    QList<Place> m_references;
    int m_fileCount = 0;
    QString m_file;
    std::optional<PvSourcePositions> m_positions;
};
