#include "PvContentDropRedirectList.h"

#include "PvProductDiagnostics.h"
#include "PvXMLParser.h"

#include <QStringList>

#include <iterator>

namespace {
// A product has a few hundred pages at most: a wider range is a typing error. Ranges no longer
// cost memory per page, but files rely on the warning.
constexpr qint64 maximumRangeWidth = 100000;
constexpr int noRedirect = -1;

// Says which of the checks before the bare "parse error" failed.
void reportSkipped(const QDomElement& contentredirect, bool numbers, int end, int to)
{
    if (!PvDiagnostics::isListening(pvProductsLog()))
        return;
    const QString from = PvDiagnostics::quoted(contentredirect.attribute(QStringLiteral("from")));
    QString why;
    QString attribute = QStringLiteral("from");
    if (!numbers)
        why = QStringLiteral("attribute \"from\": %1 is not a page or a range a-b").arg(from);
    else if (end < 0)
        why = QStringLiteral("attribute \"from\": %1 ends below page 0").arg(from);
    else if (to < 0) {
        attribute = QStringLiteral("to");
        why = contentredirect.hasAttribute(attribute)
            ? QStringLiteral("attribute \"to\": %1 is not a page number of 0 or more").arg(PvDiagnostics::quoted(contentredirect.attribute(attribute)))
            : QStringLiteral("\"contentredirect\" has no attribute \"to\"");
    } else
        why = QStringLiteral("attribute \"from\": %1 spans more than %2 pages").arg(from).arg(maximumRangeWidth);
    PvProductDiagnostics::report(PvDiagnostic::Error, contentredirect, why + QStringLiteral("; the redirect is skipped"), attribute);
}
}

PvContentDropRedirectList::PvContentDropRedirectList(const QDomElement& contentredirects)
{
    const QString tag = QStringLiteral("contentredirect");
    for (QDomElement child = contentredirects.firstChildElement(tag); !child.isNull(); child = child.nextSiblingElement(tag))
        read(child);
}

void PvContentDropRedirectList::read(const QDomElement& contentredirect)
{
    const QString from = PvXMLParser::attribute(contentredirect, QStringLiteral("from"));
    QString startText = from;
    QString endText = from;
    if (from.contains(QLatin1Char('-'))) {
        const QStringList pieces = from.split(QLatin1Char('-'));
        startText = pieces.first();
        endText = pieces.last();
    }
    bool startOk = false;
    bool endOk = false;
    const int start = startText.toInt(&startOk, 10);
    const int end = endText.toInt(&endOk, 10);
    const int to = PvXMLParser::intAttribute(contentredirect, QStringLiteral("to"), -1);
    if (!startOk || !endOk || end < 0 || to < 0 || qint64(end) - start >= maximumRangeWidth) {
        qWarning("parse error");
        reportSkipped(contentredirect, startOk && endOk, end, to);
        return;
    }
    if (start <= end)
        redirect(start, end, to);
}

// A later redirect wins over an earlier one on the pages they share.
void PvContentDropRedirectList::redirect(qint64 first, qint64 last, int target)
{
    // Wide keys: the run after a range that ends at INT_MAX starts beyond int.
    const int after = targetAt(last + 1);
    auto it = m_runs.lowerBound(first);
    while (it != m_runs.end() && it.key() <= last + 1)
        it = m_runs.erase(it);
    m_runs.insert(first, target);
    m_runs.insert(last + 1, after);
}

int PvContentDropRedirectList::targetAt(qint64 page) const
{
    auto it = m_runs.upperBound(page);
    if (it == m_runs.cbegin())
        return noRedirect;
    return (--it).value();
}

int PvContentDropRedirectList::targetPage(int page) const
{
    const int target = targetAt(page);
    return target == noRedirect ? page : target;
}

QList<PvContentDropRedirectList::Range> PvContentDropRedirectList::ranges() const
{
    QList<Range> list;
    for (auto it = m_runs.cbegin(); it != m_runs.cend(); ++it) {
        const auto next = std::next(it);
        // The last run always goes back to no redirect, so every redirected run has an end.
        if (it.value() == noRedirect || next == m_runs.cend())
            continue;
        if (!list.isEmpty() && list.last().last + 1 == it.key() && list.last().target == it.value())
            list.last().last = next.key() - 1;
        else
            list.append(Range { it.key(), next.key() - 1, it.value() });
    }
    return list;
}
