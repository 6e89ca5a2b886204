#pragma once

#include "PvInitializerOption.h"
#include "PvSingleton.h"
#include "pvcore_export.h"

#include <QList>
#include <QMutex>

class PvInitializerAbstract;

/*!
 * The registry of library initializers. Libraries register from static initialisers when
 * they are loaded; the application runs them all once it is ready.
 */
class PVCORE_EXPORT PvInitializer : public PvSingleton<PvInitializer>
{
public:
    void registerInitializer(PvInitializerAbstract* initializer);
    [[nodiscard]] QList<PvInitializerAbstract*> initializers() const;
    void setupAll(PvInitializerOption option = {});
    // In reverse order of registration, so later libraries go before those they build on.
    void teardownAll();

private:
    friend class PvSingleton<PvInitializer>;
    PvInitializer() = default;

    mutable QMutex m_mutex;
    QList<PvInitializerAbstract*> m_initializers;
};
