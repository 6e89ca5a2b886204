#pragma once

#include "pvproductbase_export.h"

#include <QSet>
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
    [[nodiscard]] QSet<QString> ids() const { return m_ids; }
    //! The identifiers sorted and joined by ",".
    [[nodiscard]] QString toString() const;

    friend bool operator==(const PvArticleVariants& a, const PvArticleVariants& b) { return a.m_ids == b.m_ids; }
    friend bool operator!=(const PvArticleVariants& a, const PvArticleVariants& b) { return a.m_ids != b.m_ids; }

private:
    QSet<QString> m_ids;
};

PVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const PvArticleVariants& variants);
