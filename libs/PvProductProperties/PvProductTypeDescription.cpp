#include "PvProductTypeDescription.h"

#include "PvXMLParser.h"

PvProductTypeDescription::PvProductTypeDescription() = default;

PvProductTypeDescription::PvProductTypeDescription(const QDomElement& product)
{
    // The order of these steps is the order product files are read in; later steps may
    // depend on earlier ones.
    initIdentity(product);
    initArticleClass(product);
    m_coverType = PvCoverType(PvXMLParser::attribute(product, QStringLiteral("binding")));
    initReplacement(product);
}

PvProductTypeDescription::~PvProductTypeDescription() = default;

void PvProductTypeDescription::initIdentity(const QDomElement& product)
{
    m_productType = PvProductType(PvXMLParser::attribute(product, QStringLiteral("name"), QString(), true));
    m_isVario = PvXMLParser::boolAttribute(product, QStringLiteral("isVario"), false);
    m_isTwoSided = PvXMLParser::boolAttribute(product, QStringLiteral("isTwoSided"), false);
}

void PvProductTypeDescription::initArticleClass(const QDomElement& product)
{
    m_articleClass = PvArticleClass(PvXMLParser::attribute(product, QStringLiteral("class"), QStringLiteral("unknown"), true));
    if (m_articleClass.splitToBits().size() != 1)
        m_articleClass = PvArticleClass();
}

void PvProductTypeDescription::initReplacement(const QDomElement& product)
{
    m_replacedByProduct = PvProductType(PvXMLParser::attribute(product, QStringLiteral("replacedBy"), QString(), true));
    m_conversionStrategy = PvXMLRewriterStrategy(PvXMLParser::attribute(product, QStringLiteral("conversionStrategy"), QString(), true));
}

bool PvProductTypeDescription::isValid() const
{
    if (!m_articleClass.isValid())
        return false;
    return m_coverType.isValid() || m_articleClass.hasAnyOf(PvArticleClassPrints);
}

bool PvProductTypeDescription::isSimplex() const
{
    return m_coverType.isSimplex();
}

bool PvProductTypeDescription::isVarioCard() const
{
    return m_articleClass.hasAnyOf(PvArticleClassCard) && m_isVario;
}

bool PvProductTypeDescription::isEasyCard() const
{
    return m_articleClass == PvArticleClassCard && !m_isVario;
}
