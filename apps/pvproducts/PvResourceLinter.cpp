// The colour and translation files, which product files never name.
#include "PvProductLinter.h"

#include "PvDiagnosticCollector.h"
#include "PvDiagnostics.h"
#include "PvThematicCategoryColorTable.h"
#include "PvThematicCategoryTranslationRegistry.h"
#include "PvXMLLoader.h"

#include <QDomNamedNodeMap>
#include <QHash>
#include <QRegularExpression>
#include <QtGlobal>

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
    // The registry's reader says what it rejects or skips; its fixed warnings say the same again.
    PvDiagnosticCollector library;
    library.setFile(file.filePath());
    const QtMessageHandler previous = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) { });
    QString localeName;
    QHash<QString, QString> translations;
    (void)PvThematicCategoryTranslationRegistry::readTranslations(loaded, &localeName, &translations);
    qInstallMessageHandler(previous);
    addLibraryDiagnostics(library.takeDiagnostics());
}
