#pragma once

#include "PvProductType.h"
#include "PvSingleton.h"
#include "pvproductbase_export.h"

#include <QList>
#include <QMutex>

class PvProductChecker;

/*! The product checkers of the application. Checkers are not owned. */
class PVPRODUCTBASE_EXPORT PvProductCheckerRegistry : public PvSingleton<PvProductCheckerRegistry>
{
public:
    void registerChecker(PvProductChecker* checker);
    void unregisterChecker(PvProductChecker* checker);
    /*!
     * True when at least one registered checker's type() shares a bit with \a mask and every
     * such checker answers valid.
     */
    [[nodiscard]] bool isValid(const PvProductType& type, int mask) const;

private:
    friend class PvSingleton<PvProductCheckerRegistry>;
    PvProductCheckerRegistry() = default;

    mutable QMutex m_mutex;
    QList<PvProductChecker*> m_checkers;
};
