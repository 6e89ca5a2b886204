#pragma once

#include "pvcore_export.h"

#include <QString>
#include <QStringList>

#include <array>

/*!
 * Lets the equal strings that readers keep during one load share one copy. Product files
 * repeat the same image paths, category names, variant names and template names from file to
 * file; without the pool each description would keep its own copy of each, and with it the
 * parsed document it came from.
 *
 * The pool remembers the strings it saw last, a fixed number of them, in a table indexed by
 * their hash: a lookup costs one hash and one comparison with a string still in the cache,
 * and a pool's memory does not grow with the load. Equal strings far apart in a load may
 * each keep a copy; products of one family stand close together.
 *
 * A pool is in use on a thread while a PvStringPool lives there. A pool made while another
 * is in use stays idle, so that one load shares across everything it reads. Without a pool,
 * shared() answers its argument.
 */
class PVCORE_EXPORT PvStringPool
{
public:
    PvStringPool();
    ~PvStringPool();
    PvStringPool(const PvStringPool&) = delete;
    PvStringPool& operator=(const PvStringPool&) = delete;

    //! The pooled string equal to \a text, holding no more memory than its characters.
    [[nodiscard]] static QString shared(const QString& text);
    //! The pooled list equal to \a list, its strings pooled too.
    [[nodiscard]] static QStringList shared(const QStringList& list);

    //! Strings and lists this pool holds now; an idle pool holds none.
    [[nodiscard]] qsizetype size() const;

private:
    template <typename T, std::size_t Size>
    static T& slot(std::array<T, Size>& table, const T& value);

    std::array<QString, 1024> m_strings;
    std::array<QStringList, 256> m_lists;
    bool m_inUse = false;
};
