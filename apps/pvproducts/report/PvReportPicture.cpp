#include "PvReportPicture.h"

#include "PvProductTypeDescription.h"
#include "pictures/PvProductPicture.h"

namespace {
constexpr int usualPageCount = 24;
// Beyond this a picture is too wide to read in a browser; such lists are mistakes as a rule.
constexpr int maximumDrawnPages = 200;
}

PvReportPicture PvReportPicture::choose(const PvProductTypeDescription& description)
{
    if (description.countAbstractPages() == 0)
        return { 0, QStringLiteral("The product has no pages, so there is nothing to draw.") };
    // Products state no page count limits; a page list that does not grow with the count is fixed.
    const int usual = int(description.pageTypes(unsigned(usualPageCount)).size());
    const bool fixed = usual == int(description.pageTypes(unsigned(usualPageCount + 1)).size());
    if (usual > maximumDrawnPages)
        return { 0, QStringLiteral("The product has %1 pages, too many to draw here.").arg(usual) };
    if (fixed)
        return { usual, QStringLiteral("The whole product, %1 %2: its page list is the same for every order.")
                            .arg(QString::number(usual), usual == 1 ? QStringLiteral("page") : QStringLiteral("pages")) };
    return { usualPageCount, QStringLiteral("A project of %1 pages, a usual order; the customer chooses the page count.").arg(usualPageCount) };
}

QString PvReportPicture::write(const PvProductTypeDescription& description, const QString& fileName) const
{
    if (pageCount <= 0)
        return caption;
    return PvProductPicture::write(description, pageCount, fileName);
}
