#include "PvPageTiltRedirectList.h"

#include "PvValuePool.h"
#include "PvXMLParser.h"
#include "PvXMLChildElements.h"

PvPageTiltRedirectList::PvPageTiltRedirectList(const QDomElement& element)
{
    const QString tag = QStringLiteral("rotationredirect");
    for (const QDomElement child : PvXMLChildElements(element, tag)) {
        const int source = PvXMLParser::intAttribute(child, QStringLiteral("from"), -2);
        const int target = PvXMLParser::intAttribute(child, QStringLiteral("to"), -2);
        // -1 is a real page number (a page outside the normal numbering); only below is invalid.
        if (source < -1 || target < -1)
            continue;
        append(PvPageTiltRedirect(source, target, PvXMLParser::intAttribute(child, QStringLiteral("angleinvert"), 1)));
    }
    // Products of a family redirect alike.
    QList<PvPageTiltRedirect>::operator=(PvValuePool::shared<QList<PvPageTiltRedirect>>(*this));
}

PvPageTiltRedirectList PvPageTiltRedirectList::filterBySourcePage(int pageNr) const
{
    PvPageTiltRedirectList result;
    for (const PvPageTiltRedirect& redirect : *this) {
        if (redirect.sourcePageNr() == pageNr)
            result.append(redirect);
    }
    return result;
}

PvPageTiltRedirectList PvPageTiltRedirectList::filterByTargetPage(int pageNr) const
{
    PvPageTiltRedirectList result;
    for (const PvPageTiltRedirect& redirect : *this) {
        if (redirect.targetPageNr() == pageNr)
            result.append(redirect);
    }
    return result;
}
