#include "PvConfiguredArticleVariantList.h"

#include "PvValuePool.h"
#include "PvXMLParser.h"
#include "PvXMLChildElements.h"
#include "PvXMLChildren.h"

PvConfiguredArticleVariantList::PvConfiguredArticleVariantList(const QDomElement& product)
    : PvConfiguredArticleVariantList(PvXMLChildren(product))
{
}

PvConfiguredArticleVariantList::PvConfiguredArticleVariantList(const PvXMLChildren& product)
{
    const QString variantTag = QStringLiteral("variant");
    for (const QDomElement& list : product.all(u"variants")) {
        for (const QDomElement v : PvXMLChildElements(list, variantTag)) {
            m_variants.append({ PvValuePool::shared(PvXMLParser::attribute(v, QStringLiteral("id"), QString(), true)),
                                PvValuePool::shared(PvXMLParser::attribute(v, QStringLiteral("name"))),
                                PvXMLParser::boolAttribute(v, QStringLiteral("default"), false) });
        }
    }
    // Products of a family offer the same variants.
    m_variants = PvValuePool::shared(m_variants);
}

PvConfiguredArticleVariantList::Variant PvConfiguredArticleVariantList::defaultVariant() const
{
    for (const Variant& variant : m_variants) {
        if (variant.isDefault)
            return variant;
    }
    return {};
}
