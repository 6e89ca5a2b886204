#include "PvInitializer.h"

#include "PvInitializerAbstract.h"

void PvInitializer::registerInitializer(PvInitializerAbstract* initializer)
{
    if (!initializer)
        return;
    QMutexLocker locker(&m_mutex);
    if (!m_initializers.contains(initializer))
        m_initializers.append(initializer);
}

QList<PvInitializerAbstract*> PvInitializer::initializers() const
{
    QMutexLocker locker(&m_mutex);
    return m_initializers;
}

void PvInitializer::setupAll(PvInitializerOption option)
{
    // Run on a copy: a setup may register further initializers.
    const QList<PvInitializerAbstract*> all = initializers();
    for (PvInitializerAbstract* initializer : all)
        initializer->setup(option);
}

void PvInitializer::teardownAll()
{
    const QList<PvInitializerAbstract*> all = initializers();
    for (auto it = all.crbegin(); it != all.crend(); ++it)
        (*it)->teardown();
}
