#pragma once

#include "pvloading_export.h"

#include <QString>
#include <QStringList>

#include <algorithm>
#include <array>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

/*!
 * Lets the equal values that readers keep during one load share one copy. Product files
 * repeat the same image paths, category names, page lists and picture tables from file to
 * file; without the pool each description would keep its own copy of each, and with it the
 * parsed document it came from. The values are Qt's implicitly shared ones (strings and
 * lists), for which a copy is a reference.
 *
 * The pool remembers the values it saw last, a fixed number of each type, in a table indexed
 * by their hash, four to a row: a lookup costs one hash and a few comparisons, and a
 * pool's memory does not grow with the load. Equal values far apart in a load may each keep
 * a copy; products of one family stand close together.
 *
 * A pool is in use on a thread while a PvValuePool lives there. A pool made while another
 * is in use stays idle, so that one load shares across everything it reads. Without a pool,
 * shared() answers its argument.
 */
class PVLOADING_EXPORT PvValuePool
{
public:
    PvValuePool();
    ~PvValuePool();
    PvValuePool(const PvValuePool&) = delete;
    PvValuePool& operator=(const PvValuePool&) = delete;

    //! The pooled string equal to \a text, holding no more memory than its characters.
    [[nodiscard]] static QString shared(const QString& text);
    //! The pooled list equal to \a list, its strings pooled too.
    [[nodiscard]] static QStringList shared(const QStringList& list);
    //! The pooled value equal to \a value, of a type with qHash() and operator==.
    template <typename T>
    [[nodiscard]] static T shared(const T& value);

    //! Values this pool holds now; an idle pool holds none.
    [[nodiscard]] qsizetype size() const;

private:
    struct TableBase
    {
        virtual ~TableBase() = default;
        [[nodiscard]] virtual qsizetype size() const = 0;
    };
    template <typename T, std::size_t Size>
    struct Table : TableBase
    {
        // Four to a row, the last used first: values that hash alike no longer push each
        // other out on every use (with one to a row, the files of a catalogue each kept their
        // own copy of some paths).
        static constexpr std::size_t ways = 4;
        std::array<T, Size> held;
        // The held value equal to \a value, or \a make's copy of it, which then takes the
        // place of the row's least recently used value.
        template <typename Make>
        const T& find(size_t hash, const T& value, Make make)
        {
            T* row = &held[(hash & (Size / ways - 1)) * ways];
            std::size_t found = 0;
            while (found < ways && !(row[found] == value))
                ++found;
            if (found == ways) {
                found = ways - 1;
                row[found] = make(value);
            }
            std::rotate(row, row + found, row + found + 1);
            return row[0];
        }
        [[nodiscard]] qsizetype size() const override;
    };

    // The table of type T, made when first asked for: texts need more rows than other types.
    template <typename T, std::size_t Size = 256>
    Table<T, Size>& table();
    // A small number for each type that asks, so that a pool finds its table by index.
    static int nextTypeId();
    template <typename T>
    static int typeId()
    {
        static const int id = nextTypeId();
        return id;
    }
    // A copy of \a value without spare capacity: lists and texts built by appending carry some.
    template <typename T>
    static T exact(const T& value)
    {
        T copy = value;
        if (copy.capacity() > copy.size())
            copy.squeeze();
        return copy;
    }
    [[nodiscard]] static PvValuePool* current();

    // On the heap: a pool lives on the stack of whoever loads, and its tables take some 30 KB.
    std::vector<std::unique_ptr<TableBase>> m_tables;
    bool m_inUse = false;
};

template <typename T, std::size_t Size>
qsizetype PvValuePool::Table<T, Size>::size() const
{
    qsizetype count = 0;
    for (const T& value : held)
        count += value.isEmpty() ? 0 : 1;
    return count;
}

template <typename T, std::size_t Size>
PvValuePool::Table<T, Size>& PvValuePool::table()
{
    const auto id = std::size_t(typeId<T>());
    if (m_tables.size() <= id)
        m_tables.resize(id + 1);
    if (!m_tables[id])
        m_tables[id] = std::make_unique<Table<T, Size>>();
    return static_cast<Table<T, Size>&>(*m_tables[id]);
}

template <typename T>
T PvValuePool::shared(const T& value)
{
    // Their tables are of another size; the overloads above reach them.
    static_assert(!std::is_same_v<T, QString> && !std::is_same_v<T, QStringList>, "texts and text lists have overloads of their own");
    PvValuePool* pool = current();
    if (!pool || value.isEmpty())
        return value;
    return pool->table<T>().find(qHash(value, 0), value, exact<T>);
}
