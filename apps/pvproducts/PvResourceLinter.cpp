// The colour and translation files, which product files never name.
#include "PvProductLinter.h"

#include "PvDiagnosticCollector.h"
#include "PvDiagnostics.h"
#include "PvThematicCategoryColorTable.h"
#include "PvXMLLoader.h"

#include <QColor>
#include <QDomNamedNodeMap>
#include <QHash>
#include <QRegularExpression>

using PvDiagnostics::quoted;

void PvProductLinter::lintColors(const QFileInfo& file)
{
    ++m_fileCount;
    PvDiagnosticCollector collector;
    const QDomElement loaded = PvXMLLoader::loadDocumentElement(file);
    const QDomElement root = open(file);
    addLibraryDiagnostics(collector.takeDiagnostics());
    if (loaded.isNull() || root.isNull())
        return;
    // The table says what it skips; only the attributes it never reads are the linter's to tell.
    {
        PvDiagnosticCollector library;
        library.setFile(file.filePath());
        (void)PvThematicCategoryColorTable(loaded);
        addLibraryDiagnostics(library.takeDiagnostics());
    }
    const QDomNodeList colors = root.elementsByTagName(QStringLiteral("color"));
    for (int i = 0; i < colors.count(); ++i) {
        const QDomElement color = colors.at(i).toElement();
        const QDomNamedNodeMap attributes = color.attributes();
        for (int a = 0; a < attributes.count(); ++a) {
            const QString name = attributes.item(a).nodeName();
            if (name != QLatin1String("name") && name != QLatin1String("rgb"))
                report(color, PvDiagnostic::Error, QStringLiteral("unknown attribute %1 on \"color\" is ignored").arg(quoted(name)), name,
                       PvDiagnostics::closest(name, { QStringLiteral("name"), QStringLiteral("rgb") }), name);
        }
    }
}

void PvProductLinter::lintTranslations(const QFileInfo& file)
{
    ++m_fileCount;
    PvDiagnosticCollector collector;
    const QDomElement loaded = PvXMLLoader::loadDocumentElement(file);
    const QDomElement root = open(file);
    addLibraryDiagnostics(collector.takeDiagnostics());
    static const QRegularExpression languageInName(QStringLiteral("_[A-Za-z]{2,3}_"));
    if (!languageInName.match(file.fileName()).hasMatch())
        reportFile(PvDiagnostic::Error, QStringLiteral("the file name has no language code between underscores (like \"dlp-categories_en_.ts\"); it is never read"));
    if (loaded.isNull() || root.isNull())
        return;
    if (root.tagName() != QLatin1String("TS")) {
        report(root, PvDiagnostic::Error, QStringLiteral("the document element is %1, not \"TS\"; the file is rejected").arg(quoted(root.tagName())), QString(),
               PvDiagnostics::closest(root.tagName(), { QStringLiteral("TS") }), root.tagName());
        return;
    }
    if (root.attribute(QStringLiteral("language")).trimmed().isEmpty()) {
        report(root, PvDiagnostic::Error, QStringLiteral("\"TS\" has no \"language\"; the file is rejected"));
        return;
    }
    const QDomElement context = root.firstChildElement(QStringLiteral("context"));
    if (context.isNull()) {
        report(root, PvDiagnostic::Error, QStringLiteral("no \"context\" after \"TS\"; the file is rejected"));
        return;
    }
    for (QDomElement other = context.nextSiblingElement(QStringLiteral("context")); !other.isNull(); other = other.nextSiblingElement(QStringLiteral("context")))
        report(other, PvDiagnostic::Error, QStringLiteral("only the first \"context\" is read; this one is ignored"));
    QHash<QString, QString> sourceOf;
    for (QDomElement message = context.firstChildElement(QStringLiteral("message")); !message.isNull();
         message = message.nextSiblingElement(QStringLiteral("message"))) {
        const QDomElement source = message.firstChildElement(QStringLiteral("source"));
        const QDomElement translation = message.firstChildElement(QStringLiteral("translation"));
        if (source.isNull() || source.text().simplified().isEmpty()) {
            report(message, PvDiagnostic::Error, QStringLiteral("\"message\" without \"source\" translates nothing"));
            continue;
        }
        if (translation.text().isEmpty()) {
            report(translation.isNull() ? message : translation, PvDiagnostic::Error,
                   QStringLiteral("empty translation of %1 is skipped").arg(quoted(source.text().simplified())));
            continue;
        }
        const QString earlier = sourceOf.value(translation.text());
        if (!earlier.isEmpty() && earlier != source.text().simplified())
            report(translation, PvDiagnostic::Warning,
                   QStringLiteral("%1 and %2 both translate to %3 and become one category in this language")
                       .arg(quoted(earlier), quoted(source.text().simplified()), quoted(translation.text())));
        sourceOf.insert(translation.text(), source.text().simplified());
    }
}
