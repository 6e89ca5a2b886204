#pragma once

#include "pvproductbase_export.h"

#include <QSet>
#include <QStringList>
#include <QString>

class QDebug;

/*! The article variants a customer chose, as a set of identifiers. */
class PVPRODUCTBASE_EXPORT PvArticleVariants
{
public:
    PvArticleVariants() = default;
    //! From comma-separated text: parts trimmed, empty parts dropped.
    explicit PvArticleVariants(const QString& text);

    [[nodiscard]] bool isValid() const { return !m_ids.isEmpty(); }
    [[nodiscard]] QSet<QString> ids() const { return QSet<QString>(m_ids.cbegin(), m_ids.cend()); }
    //! The identifiers sorted and joined by ",".
    [[nodiscard]] QString toString() const;

    friend bool operator==(const PvArticleVariants& a, const PvArticleVariants& b) { return a.m_ids == b.m_ids; }
    friend bool operator!=(const PvArticleVariants& a, const PvArticleVariants& b) { return a.m_ids != b.m_ids; }

private:
    // Sorted and without repeats, so that equal sets compare equal. A list: most hold one
    // identifier, and a set takes a table for dozens from the first.
    QStringList m_ids;
};

PVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const PvArticleVariants& variants);
