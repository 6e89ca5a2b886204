#include "PvCSSSkinManager.h"

QColor PvCSSSkinManager::backgroundColor() const
{
    QMutexLocker locker(&m_mutex);
    return m_backgroundColor;
}

void PvCSSSkinManager::setBackgroundColor(const QColor& color)
{
    QMutexLocker locker(&m_mutex);
    m_backgroundColor = color;
}
