#include "PvThematicCategoryRegistry.h"

#include "PvLocaleAndTranslationManager.h"
#include "PvThematicCategory.h"
#include "PvThematicCategoryTranslationRegistry.h"

#include <QStringList>

namespace {
// Nothing is merged into these, even when another name translates to the same text.
const QStringList& internalCategoryNames()
{
    static const QStringList names { PvThematicCategory::framesInternalCategoryName(),
                                     PvThematicCategory::passepartoutInternalCategoryName() };
    return names;
}

QString translated(const QString& name)
{
    return PvThematicCategoryTranslationRegistry::instance().translate(
        name, PvLocaleAndTranslationManager::instance().locale());
}
}

PvThematicCategoryRegistry::PvThematicCategoryRegistry()
{
    m_internalNames.reserve(1000);
    m_visibleNames.reserve(1000);
    m_keysByInternalName.reserve(1000);
}

// Lock order: m_mutex first, then the translation registry's lock inside translate().
int PvThematicCategoryRegistry::key(const QString& name)
{
    PvMutexLocker locker(&m_mutex);
    const QString lower = name.toLower();
    if (const auto it = m_keysByInternalName.constFind(lower); it != m_keysByInternalName.cend())
        return *it;
    if (const auto it = m_keysByVisibleName.constFind(lower); it != m_keysByVisibleName.cend())
        return *it;
    const QString visible = translated(name);
    const QString lowerVisible = visible.toLower();
    const int k = generateKey(lowerVisible);
    // A merged alias takes over the names of the category it joins.
    m_internalNames.insert(k, name);
    m_visibleNames.insert(k, visible);
    m_keysByInternalName.insert(lower, k);
    m_keysByVisibleName.insert(lowerVisible, k);
    return k;
}

int PvThematicCategoryRegistry::generateKey(const QString& lowerVisibleName)
{
    const auto it = lowerVisibleName.isEmpty() ? m_keysByVisibleName.cend() : m_keysByVisibleName.constFind(lowerVisibleName);
    if (it != m_keysByVisibleName.cend() && !internalCategoryNames().contains(m_internalNames.value(*it)))
        return *it;
    return m_nextKey++;
}

QString PvThematicCategoryRegistry::internalName(const int& key) const
{
    PvMutexLocker locker(&m_mutex);
    return m_internalNames.value(key);
}

QString PvThematicCategoryRegistry::visibleName(const int& key) const
{
    PvMutexLocker locker(&m_mutex);
    return m_visibleNames.value(key);
}

void PvThematicCategoryRegistry::setVisibleName(const int& key, const QString& name)
{
    // Locked as well: an unguarded store would race with lookups from other threads.
    PvMutexLocker locker(&m_mutex);
    m_visibleNames.insert(key, name.isEmpty() ? translated(m_internalNames.value(key)) : name);
}
