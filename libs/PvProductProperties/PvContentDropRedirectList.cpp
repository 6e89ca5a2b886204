#include "PvContentDropRedirectList.h"

#include "PvProductDiagnostics.h"
#include "PvValuePool.h"
#include "PvXMLParser.h"
#include "PvXMLChildElements.h"

#include <QStringList>

#include <algorithm>
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

// The target of the run \a page lies in, -1 for none: in the map being built and in the kept list.
int targetIn(const QMap<qint64, int>& runs, qint64 page)
{
    const auto after = runs.upperBound(page);
    return after == runs.cbegin() ? noRedirect : std::prev(after).value();
}

int targetIn(const QList<std::pair<qint64, int>>& runs, qint64 page)
{
    const auto after = std::upper_bound(runs.cbegin(), runs.cend(), page, [](qint64 wanted, const auto& run) { return wanted < run.first; });
    return after == runs.cbegin() ? noRedirect : std::prev(after)->second;
}
}

PvContentDropRedirectList::PvContentDropRedirectList(const QDomElement& contentredirects)
{
    const QString tag = QStringLiteral("contentredirect");
    Runs runs;
    for (const QDomElement child : PvXMLChildElements(contentredirects, tag))
        read(child, &runs);
    m_runs.reserve(runs.size());
    for (auto it = runs.cbegin(); it != runs.cend(); ++it)
        m_runs.append({ it.key(), it.value() });
    m_runs = PvValuePool::shared(m_runs);
}

void PvContentDropRedirectList::read(const QDomElement& contentredirect, Runs* runs)
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
        redirect(start, end, to, runs);
}

// A later redirect wins over an earlier one on the pages they share.
void PvContentDropRedirectList::redirect(qint64 first, qint64 last, int target, Runs* runs)
{
    // Wide keys: the run after a range that ends at INT_MAX starts beyond int.
    const int after = targetIn(*runs, last + 1);
    auto it = runs->lowerBound(first);
    while (it != runs->end() && it.key() <= last + 1)
        it = runs->erase(it);
    runs->insert(first, target);
    runs->insert(last + 1, after);
}

int PvContentDropRedirectList::targetPage(int page) const
{
    const int target = targetIn(m_runs, page);
    return target == noRedirect ? page : target;
}

QList<PvContentDropRedirectList::Range> PvContentDropRedirectList::ranges() const
{
    QList<Range> list;
    for (auto it = m_runs.cbegin(); it != m_runs.cend(); ++it) {
        const auto next = std::next(it);
        // The last run always goes back to no redirect, so every redirected run has an end.
        if (it->second == noRedirect || next == m_runs.cend())
            continue;
        if (!list.isEmpty() && list.last().last + 1 == it->first && list.last().target == it->second)
            list.last().last = next->first - 1;
        else
            list.append(Range { it->first, next->first - 1, it->second });
    }
    return list;
}
