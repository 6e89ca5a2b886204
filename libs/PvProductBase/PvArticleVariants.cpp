#include "PvArticleVariants.h"

#include <QDebug>
#include <QStringList>

PvArticleVariants::PvArticleVariants(const QString& text)
{
    const QStringList parts = text.split(QLatin1Char(','));
    for (const QString& part : parts) {
        const QString id = part.trimmed();
        if (!id.isEmpty())
            m_ids.insert(id);
    }
}

QString PvArticleVariants::toString() const
{
    QStringList sorted(m_ids.cbegin(), m_ids.cend());
    sorted.sort();
    return sorted.join(QLatin1Char(','));
}

QDebug operator<<(QDebug debug, const PvArticleVariants& variants)
{
    const QDebugStateSaver saver(debug);
    debug.noquote() << variants.toString();
    return debug;
}
