#include "PvStringPool.h"

#include <algorithm>

namespace {
thread_local PvStringPool* current = nullptr;

// A copy holding no spare capacity: texts built by appending carry some.
template <typename T>
T exact(const T& value)
{
    T copy = value;
    if (copy.capacity() > copy.size())
        copy.squeeze();
    return copy;
}
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

qsizetype PvStringPool::size() const
{
    const auto held = [](const auto& value) { return !value.isEmpty(); };
    return std::count_if(m_strings.cbegin(), m_strings.cend(), held) + std::count_if(m_lists.cbegin(), m_lists.cend(), held);
}

template <typename T, std::size_t Size>
T& PvStringPool::slot(std::array<T, Size>& table, const T& value)
{
    static_assert((Size & (Size - 1)) == 0, "the table size is a power of two");
    return table[qHash(value, 0) & (Size - 1)];
}

QString PvStringPool::shared(const QString& text)
{
    PvStringPool* pool = current;
    // Texts of a few characters are left alone: in a load of thousands of files, sharing
    // them cost more time than their copies take memory.
    if (!pool || text.size() < 4)
        return text;
    QString& held = slot(pool->m_strings, text);
    if (held != text)
        held = exact(text);
    return held;
}

QStringList PvStringPool::shared(const QStringList& list)
{
    PvStringPool* pool = current;
    if (!pool || list.isEmpty())
        return list;
    QStringList& held = slot(pool->m_lists, list);
    if (held != list) {
        QStringList copy;
        copy.reserve(list.size());
        for (const QString& text : list)
            copy.append(shared(text));
        held = copy;
    }
    return held;
}
