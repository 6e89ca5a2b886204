#include "PvConfiguredArticleVariantList.h"

#include "PvValuePool.h"
#include "PvXMLParser.h"

PvConfiguredArticleVariantList::PvConfiguredArticleVariantList(const QDomElement& product)
{
    const QString variantTag = QStringLiteral("variant");
    for (QDomElement list = product.firstChildElement(QStringLiteral("variants")); !list.isNull(); list = list.nextSiblingElement(QStringLiteral("variants"))) {
        for (QDomElement v = list.firstChildElement(variantTag); !v.isNull(); v = v.nextSiblingElement(variantTag)) {
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
