#include "PvContentDropRedirectList.h"

#include "PvProductDiagnostics.h"

#include "PvXMLParser.h"

#include <QStringList>

namespace {
// A product has a few hundred pages at most; a wider range is a typo that would otherwise
// fill memory with one entry per page.
constexpr qint64 maximumRangeWidth = 100000;

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
    // Wide counter: an end of INT_MAX must not overflow the loop.
    for (qint64 page = start; page <= end; ++page)
        m_redirects.insert(int(page), to);
}

int PvContentDropRedirectList::targetPage(int page) const
{
    return m_redirects.value(page, page);
}
