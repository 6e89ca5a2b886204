#include "PvArticleVariants.h"

#include "PvValuePool.h"

#include <QDebug>
#include <QStringList>

PvArticleVariants::PvArticleVariants(const QString& text)
{
    for (const QStringView part : QStringView(text).tokenize(u',')) {
        const QStringView id = part.trimmed();
        if (!id.isEmpty())
            m_ids.append(id.toString());
    }
    // Most texts name no variant or one, with nothing to sort.
    if (m_ids.size() > 1) {
        m_ids.sort();
        m_ids.removeDuplicates();
    }
    m_ids = PvValuePool::shared(m_ids);
}

QString PvArticleVariants::toString() const
{
    return m_ids.join(QLatin1Char(','));
}

QDebug operator<<(QDebug debug, const PvArticleVariants& variants)
{
    const QDebugStateSaver saver(debug);
    debug.noquote() << variants.toString();
    return debug;
}
