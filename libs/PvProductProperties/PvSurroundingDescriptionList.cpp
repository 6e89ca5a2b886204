#include "PvSurroundingDescriptionList.h"

#include "PvSurroundingKey.h"
#include "PvXMLChildren.h"
#include "PvXMLChildElements.h"

#include <algorithm>

PvSurroundingDescriptionList::PvSurroundingDescriptionList(const PvProductType& productType, const QDomElement& product)
    : PvSurroundingDescriptionList(productType, PvXMLChildren(product))
{
}

PvSurroundingDescriptionList::PvSurroundingDescriptionList(const PvProductType& productType, const PvXMLChildren& product)
{
    const QString itemName = QStringLiteral("surrounding");
    for (const QDomElement& block : product.all(u"surroundings")) {
        for (const QDomElement item : PvXMLChildElements(block, itemName))
            append(PvSurroundingDescription(productType, item));
    }
    squeeze();
}

PvSurroundingDescription PvSurroundingDescriptionList::findDescription(const PvSurroundingKey& key) const
{
    const auto firstSuitable = [this](const PvSurroundingKey& wanted) {
        return std::find_if(cbegin(), cend(), [&wanted](const PvSurroundingDescription& d) { return d.isSuitable(wanted); });
    };
    auto found = firstSuitable(key);
    if (found == cend() && key.variant().isValid())
        found = firstSuitable(PvSurroundingKey(key.pageContext(), key.pageIndex(), PvArticleVariants()));
    return found == cend() ? PvSurroundingDescription() : *found;
}

bool PvSurroundingDescriptionList::hasSurroundingWithBindingShade() const
{
    return std::any_of(cbegin(), cend(), [](const PvSurroundingDescription& d) { return d.hasBindingShade(); });
}
