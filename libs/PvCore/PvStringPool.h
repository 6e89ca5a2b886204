#pragma once

#include "pvcore_export.h"

#include <QSet>
#include <QString>
#include <QStringList>

/*!
 * Lets the equal strings that readers keep during one load share one copy. Product files
 * repeat the same image paths, category names, variant names and template names from file to
 * file; without the pool each description would keep its own copy of each, and with it the
 * parsed document it came from.
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

    //! Distinct strings and lists kept by this pool; an idle pool keeps none.
    [[nodiscard]] qsizetype size() const { return m_strings.size() + m_lists.size(); }

private:
    QSet<QString> m_strings;
    QSet<QStringList> m_lists;
    bool m_inUse = false;
};
