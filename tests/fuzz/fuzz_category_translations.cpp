// A ".ts" category translation file through the translation registry, both as a file's
// document and as the in-memory document of the locale manager, then the category code that
// shows visible names. Translations and interned names are never dropped, so few new names
// are interned per input to keep the process from growing without end.

#include "PvFuzzSupport.h"

#include "PvBasisSettings.h"
#include "PvLocaleAndTranslationManager.h"
#include "PvThematicCategory.h"
#include "PvThematicCategoryList.h"
#include "PvThematicCategorySet.h"
#include "PvThematicCategoryTranslationRegistry.h"

#include <QDomNodeList>

namespace {
constexpr int maxNewCategories = 2;

QStringList sources(const QDomElement& root)
{
    QStringList texts;
    const QDomNodeList elements = root.elementsByTagName(QStringLiteral("source"));
    for (int i = 0; i < elements.size(); ++i)
        texts.append(elements.at(i).toElement().text());
    return texts;
}

void showCategories(const PvThematicCategoryTranslationRegistry& registry, const QStringList& texts)
{
    PvThematicCategorySet categories = PvThematicCategorySet::specialCategories();
    for (const QString& text : texts.mid(0, maxNewCategories))
        categories.insert(PvThematicCategory(text));
    for (const bool masterMode : { false, true }) {
        PvBasisSettings::instance().setRunsInMasterMode(masterMode);
        (void)registry.toVisibleStringList(categories);
    }
    PvThematicCategoryList list(categories);
    std::sort(list.begin(), list.end(), PvThematicCategory::compareAlphabetically);
    (void)categories.preferredCategory(true), (void)categories.preferredCategory(false);
}
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    PvFuzz::initialize();
    const QByteArray input = PvFuzz::bytes(data, size);
    PvThematicCategoryTranslationRegistry& registry = PvThematicCategoryTranslationRegistry::instance();
    const QDomElement root = PvFuzz::documentElement(input);
    (void)registry.parseXML(root);
    PvLocaleAndTranslationManager::instance().setThematicTranslations(QString::fromUtf8(input));
    (void)registry.initFromZIP();

    const QStringList texts = sources(root);
    const QLocale locale(root.attribute(QStringLiteral("language")));
    for (const QLocale& where : { locale, QLocale(locale.language()), PvLocaleAndTranslationManager::instance().locale() }) {
        for (const QString& text : texts) {
            (void)registry.translate(text, where);
            (void)registry.translation(text + QStringLiteral("_metallic"), where);
        }
    }
    showCategories(registry, texts);
    return 0;
}
