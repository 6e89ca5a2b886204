#include "PvProductCheckerRegistry.h"

#include "PvProductChecker.h"

void PvProductCheckerRegistry::registerChecker(PvProductChecker* checker)
{
    QMutexLocker locker(&m_mutex);
    if (checker && !m_checkers.contains(checker))
        m_checkers.append(checker);
}

void PvProductCheckerRegistry::unregisterChecker(PvProductChecker* checker)
{
    QMutexLocker locker(&m_mutex);
    m_checkers.removeAll(checker);
}

bool PvProductCheckerRegistry::isValid(const PvProductType& type, int mask) const
{
    QMutexLocker locker(&m_mutex);
    bool asked = false;
    for (const PvProductChecker* checker : m_checkers) {
        if (!(checker->type() & mask))
            continue;
        if (!checker->isValid(type))
            return false;
        asked = true;
    }
    return asked;
}
