#pragma once

#include "PvAnnotatedLocks.h"
#include "PvSingleton.h"
#include "pvproductproperties_export.h"

#include <QHash>
#include <QString>

/*!
 * Interns thematic category names to integer keys and remembers, per key, the internal name
 * and the visible name in the user's language. Names are found case-insensitively by either
 * name; names that translate to the same visible text share one key, except that nothing is
 * merged into the internal frame and passe-partout categories. Entries are never removed.
 */
class PVPRODUCTPROPERTIES_EXPORT PvThematicCategoryRegistry : public PvSingleton<PvThematicCategoryRegistry>
{
public:
    //! The key of \a name, registered on first sight.
    int key(const QString& name);
    //! Empty for an unknown key.
    [[nodiscard]] QString internalName(const int& key) const;
    //! Empty for an unknown key.
    [[nodiscard]] QString visibleName(const int& key) const;
    /*!
     * Replaces the visible name of \a key; an empty \a name restores the translation of the
     * internal name. The new name is not found by key().
     */
    void setVisibleName(const int& key, const QString& name);

private:
    friend class PvSingleton<PvThematicCategoryRegistry>;
    PvThematicCategoryRegistry();

    // Call with m_mutex held.
    int generateKey(const QString& lowerVisibleName);

    int m_nextKey = 1;
    mutable PvMutex m_mutex;
    QHash<int, QString> m_internalNames;
    QHash<int, QString> m_visibleNames;
    QHash<QString, int> m_keysByInternalName;
    QHash<QString, int> m_keysByVisibleName;
};
