#include "PvContentDropRedirectList.h"

#include "PvXMLParser.h"

#include <QStringList>

namespace {
// A product has a few hundred pages at most; a wider range is a typo that would otherwise
// fill memory with one entry per page.
constexpr qint64 maximumRangeWidth = 100000;
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
