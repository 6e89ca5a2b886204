#include "PvStringPool.h"

namespace {
thread_local PvStringPool* current = nullptr;
}

PvStringPool::PvStringPool()
    : m_inUse(current == nullptr)
{
    if (m_inUse)
        current = this;
}

PvStringPool::~PvStringPool()
{
    if (m_inUse)
        current = nullptr;
}

QString PvStringPool::shared(const QString& text)
{
    PvStringPool* pool = current;
    if (!pool || text.isEmpty())
        return text;
    const auto found = pool->m_strings.constFind(text);
    if (found != pool->m_strings.cend())
        return *found;
    // Texts built by appending carry spare capacity; the pooled copy does not.
    QString exact = text;
    if (exact.capacity() > exact.size())
        exact.squeeze();
    pool->m_strings.insert(exact);
    return exact;
}

QStringList PvStringPool::shared(const QStringList& list)
{
    PvStringPool* pool = current;
    if (!pool || list.isEmpty())
        return list;
    const auto found = pool->m_lists.constFind(list);
    if (found != pool->m_lists.cend())
        return *found;
    QStringList exact;
    exact.reserve(list.size());
    for (const QString& text : list)
        exact.append(shared(text));
    pool->m_lists.insert(exact);
    return exact;
}
