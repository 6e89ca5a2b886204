#include "PvValuePool.h"

#include <atomic>

namespace {
thread_local PvValuePool* activePool = nullptr;
}

PvValuePool::PvValuePool()
    : m_inUse(activePool == nullptr)
{
    if (m_inUse)
        activePool = this;
}

PvValuePool::~PvValuePool()
{
    if (m_inUse)
        activePool = nullptr;
}

int PvValuePool::nextTypeId()
{
    static std::atomic<int> next { 0 };
    return next++;
}

PvValuePool* PvValuePool::current()
{
    return activePool;
}

qsizetype PvValuePool::size() const
{
    qsizetype held = 0;
    for (const auto& table : m_tables)
        held += table ? table->size() : 0;
    return held;
}

QString PvValuePool::shared(const QString& text)
{
    PvValuePool* pool = current();
    // Texts of a few characters are left alone: in a load of thousands of files, sharing
    // them cost more time than their copies take memory.
    if (!pool || text.size() < 4)
        return text;
    return pool->table<QString, 1024>().find(qHash(text, 0), text, exact<QString>);
}

QStringList PvValuePool::shared(const QStringList& list)
{
    PvValuePool* pool = current();
    if (!pool || list.isEmpty())
        return list;
    return pool->table<QStringList>().find(qHash(list, 0), list, [](const QStringList& values) {
        QStringList copy;
        copy.reserve(values.size());
        for (const QString& text : values)
            copy.append(shared(text));
        return copy;
    });
}
