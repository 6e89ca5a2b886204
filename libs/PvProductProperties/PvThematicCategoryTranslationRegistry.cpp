#include "PvThematicCategoryTranslationRegistry.h"

#include "PvBasisSettings.h"
#include "PvDirectoryConfig.h"
#include "PvLocaleAndTranslationManager.h"
#include "PvDiagnosticCollector.h"
#include "PvProductDiagnostics.h"
#include "PvThematicCategory.h"
#include "PvThematicCategorySet.h"
#include "PvXMLLoader.h"

#include <QDomDocument>
#include <QtDebug>

using PvDiagnostics::quoted;

PvThematicCategoryTranslationRegistry::PvThematicCategoryTranslationRegistry()
    : PvXMLBasedRegistry(QStringLiteral("ts"), true)
{
    // Runs our own init(): the translations of the current language are there from the start.
    init();
}

PvThematicCategoryTranslationRegistry::~PvThematicCategoryTranslationRegistry() = default;

bool PvThematicCategoryTranslationRegistry::init()
{
    if (PvLocaleAndTranslationManager::instance().languageChanged() && initFromZIP() && loadDLPCategoryTSFiles())
        return true;
    return PvXMLBasedRegistry::init();
}

bool PvThematicCategoryTranslationRegistry::initFromZIP()
{
    QDomDocument document;
    // A document that does not parse leaves a null root, which parseXML() rejects.
    (void)document.setContent(PvLocaleAndTranslationManager::instance().thematicTranslations());
    return parseXML(document.documentElement());
}

bool PvThematicCategoryTranslationRegistry::loadDLPCategoryTSFiles()
{
    const QString code = PvLocaleAndTranslationManager::instance().languageCode();
    return loadFiles({ QStringLiteral("dlp-categories_%1_.ts").arg(code) }, false);
}

bool PvThematicCategoryTranslationRegistry::parseXML(const QFileInfo& file, bool /*reload*/)
{
    const PvDiagnosticFileScope scope(file.filePath());
    return parseXML(PvXMLLoader::loadDocumentElement(file));
}

bool PvThematicCategoryTranslationRegistry::parseXML(const QDomElement& root)
{
    QString localeName;
    QHash<QString, QString> pairs;
    if (!readTranslations(root, &localeName, &pairs))
        return false;
    addTranslations(localeName, pairs);
    return true;
}

bool PvThematicCategoryTranslationRegistry::readTranslations(const QDomElement& root, QString* localeName, QHash<QString, QString>* translations)
{
    // A null root is a file that did not load, which the loader has reported already.
    const bool listening = !root.isNull() && PvDiagnostics::isListening(pvCategoriesLog());
    const auto report = [](const QDomNode& node, const QString& message, PvDiagnostic::Severity severity = PvDiagnostic::Error,
                           const QString& suggestion = QString(), const QString& found = QString()) {
        PvDiagnostics::report(pvCategoriesLog(), severity, node, message, QString(), suggestion, found);
    };
    if (root.tagName() != QLatin1String("TS")) {
        qWarning("No TS element at beginning.");
        if (listening)
            report(root, QStringLiteral("the document element is %1, not \"TS\"; the file is rejected").arg(quoted(root.tagName())), PvDiagnostic::Error,
                   PvDiagnostics::closest(root.tagName(), { QStringLiteral("TS") }), root.tagName());
        return false;
    }
    const QString language = root.attribute(QStringLiteral("language"));
    if (language.isEmpty()) {
        qWarning("No language attribute.");
        if (listening)
            report(root, QStringLiteral("\"TS\" has no \"language\"; the file is rejected"));
        return false;
    }
    // Only the first context counts; its name is not looked at.
    const QString contextTag = QStringLiteral("context");
    const QDomElement context = root.firstChildElement(contextTag);
    if (context.isNull()) {
        qWarning("No contextElement element after TS.");
        if (listening)
            report(root, QStringLiteral("no \"context\" after \"TS\"; the file is rejected"));
        return false;
    }
    for (QDomElement other = context.nextSiblingElement(contextTag); listening && !other.isNull(); other = other.nextSiblingElement(contextTag))
        report(other, QStringLiteral("only the first \"context\" is read; this one is ignored"));
    QHash<QString, QString> sourceOf;
    for (QDomElement message = context.firstChildElement(QStringLiteral("message")); !message.isNull();
         message = message.nextSiblingElement(QStringLiteral("message"))) {
        const QDomElement source = message.firstChildElement(QStringLiteral("source"));
        const QDomElement translation = message.firstChildElement(QStringLiteral("translation"));
        const QString sourceText = source.text().simplified();
        if (listening) {
            if (sourceText.isEmpty())
                report(message, QStringLiteral("\"message\" without \"source\" translates nothing"));
            else if (translation.text().isEmpty())
                report(translation.isNull() ? message : translation, QStringLiteral("empty translation of %1 is skipped").arg(quoted(sourceText)));
        }
        if (source.isNull() || translation.isNull() || translation.text().isEmpty())
            continue;
        if (listening && !sourceText.isEmpty()) {
            const QString earlier = sourceOf.value(translation.text());
            if (!earlier.isEmpty() && earlier != sourceText)
                report(translation,
                       QStringLiteral("%1 and %2 both translate to %3 and become one category in this language")
                           .arg(quoted(earlier), quoted(sourceText), quoted(translation.text())),
                       PvDiagnostic::Warning);
            sourceOf.insert(translation.text(), sourceText);
        }
        translations->insert(sourceText, translation.text());
    }
    *localeName = QLocale(language).name();
    return true;
}

void PvThematicCategoryTranslationRegistry::addTranslations(const QString& localeName,
                                                            const QHash<QString, QString>& translations)
{
    PvWriteLocker locker(&m_lock);
    QHash<QString, QString>& table = m_translations[localeName];
    for (auto it = translations.cbegin(); it != translations.cend(); ++it)
        table.insert(it.key(), it.value());
}

QString PvThematicCategoryTranslationRegistry::translation(const QString& text, const QLocale& locale) const
{
    PvReadLocker locker(&m_lock);
    QString source = text.simplified();
    const auto own = m_translations.constFind(locale.name());
    if (own != m_translations.cend()) {
        if (const auto found = own->constFind(source); found != own->cend())
            return *found;
        // Metallic variants share the translation of their base colour.
        source.remove(QStringLiteral("_metallic"));
        if (const auto found = own->constFind(source); found != own->cend())
            return *found;
    }
    const auto fallback = m_translations.constFind(QLocale(locale.language()).name());
    if (fallback != m_translations.cend()) {
        if (const auto found = fallback->constFind(source); found != fallback->cend())
            return *found;
    }
    return text;
}

QString PvThematicCategoryTranslationRegistry::translate(const QString& text, const QLocale& locale) const
{
    return translation(text, locale);
}

QString PvThematicCategoryTranslationRegistry::humanReadable(const PvThematicCategory& category) const
{
    const QString visible = category.visibleName();
    QString text = translation(visible, PvLocaleAndTranslationManager::instance().locale());
    if (PvBasisSettings::instance().runsInMasterMode())
        text += QStringLiteral(" (%1)").arg(visible);
    return text;
}

QStringList PvThematicCategoryTranslationRegistry::toVisibleStringList(const PvThematicCategorySet& categories) const
{
    QStringList names;
    names.reserve(categories.size());
    for (const PvThematicCategory& category : categories)
        names.append(humanReadable(category));
    return names;
}

QList<QDir> PvThematicCategoryTranslationRegistry::supervisedDirectories() const
{
    return PvDirectoryConfig::instance().thematicTranslationDirs();
}

QStringList PvThematicCategoryTranslationRegistry::nameFilter() const
{
    static const QString languageCode = PvLocaleAndTranslationManager::instance().languageCode();
    return { QStringLiteral("*_") + languageCode + QStringLiteral("_*.") + fileSuffix() };
}
