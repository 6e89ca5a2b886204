#include "PvValuePool.h"

#include <atomic>

namespace {
thread_local PvValuePool* activePool = nullptr;
}

PvValuePool::PvValuePool()
    : m_inUse(activePool == nullptr)
{
    if (!m_inUse)
        return;
    m_strings = std::make_unique<Table<QString, 1024>>();
    m_lists = std::make_unique<Table<QStringList, 256>>();
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
    qsizetype held = m_strings ? m_strings->size() + m_lists->size() : 0;
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
    return pool->m_strings->find(qHash(text, 0), text, exact<QString>);
}

QStringList PvValuePool::shared(const QStringList& list)
{
    PvValuePool* pool = current();
    if (!pool || list.isEmpty())
        return list;
    return pool->m_lists->find(qHash(list, 0), list, [](const QStringList& values) {
        QStringList copy;
        copy.reserve(values.size());
        for (const QString& text : values)
            copy.append(shared(text));
        return copy;
    });
}
