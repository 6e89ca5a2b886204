#pragma once

#include "PvPageTiltRedirect.h"
#include "pvproductproperties_export.h"

#include <QDomElement>
#include <QList>

/*! The tilt redirects of a product, in document order. */
class PVPRODUCTPROPERTIES_EXPORT PvPageTiltRedirectList : public QList<PvPageTiltRedirect>
{
public:
    PvPageTiltRedirectList() = default;
    /*!
     * Reads the "rotationredirect" children of a "rotationredirects" element. A child without
     * a usable "from" or "to" (below -1) is skipped; -1 is a page outside the numbering.
     */
    explicit PvPageTiltRedirectList(const QDomElement& element);

    //! The redirects whose source is page \a pageNr, in order.
    [[nodiscard]] PvPageTiltRedirectList filterBySourcePage(int pageNr) const;
    //! The redirects whose target is page \a pageNr, in order.
    [[nodiscard]] PvPageTiltRedirectList filterByTargetPage(int pageNr) const;
};
