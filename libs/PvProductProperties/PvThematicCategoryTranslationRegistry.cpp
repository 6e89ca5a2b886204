#include "PvThematicCategoryTranslationRegistry.h"

#include "PvBasisSettings.h"
#include "PvDirectoryConfig.h"
#include "PvLocaleAndTranslationManager.h"
#include "PvThematicCategory.h"
#include "PvThematicCategorySet.h"
#include "PvXMLLoader.h"

#include <QDomDocument>
#include <QtDebug>

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
    return parseXML(PvXMLLoader::loadDocumentElement(file));
}

bool PvThematicCategoryTranslationRegistry::parseXML(const QDomElement& root)
{
    if (root.tagName() != QLatin1String("TS")) {
        qWarning("No TS element at beginning.");
        return false;
    }
    const QString language = root.attribute(QStringLiteral("language"));
    if (language.isEmpty()) {
        qWarning("No language attribute.");
        return false;
    }
    // Only the first context counts; its name is not looked at.
    const QDomElement context = root.firstChildElement(QStringLiteral("context"));
    if (context.isNull()) {
        qWarning("No contextElement element after TS.");
        return false;
    }
    QHash<QString, QString> pairs;
    for (QDomElement message = context.firstChildElement(QStringLiteral("message")); !message.isNull();
         message = message.nextSiblingElement(QStringLiteral("message"))) {
        const QDomElement source = message.firstChildElement(QStringLiteral("source"));
        const QDomElement translation = message.firstChildElement(QStringLiteral("translation"));
        if (source.isNull() || translation.isNull() || translation.text().isEmpty())
            continue;
        pairs.insert(source.text().simplified(), translation.text());
    }
    addTranslations(QLocale(language).name(), pairs);
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
