#pragma once

#include "PvArticleClass.h"
#include "PvCoverType.h"
#include "PvProductType.h"
#include "PvXMLRewriterStrategy.h"
#include "pvproductproperties_export.h"

#include <QDomElement>

/*!
 * Everything the application knows about one orderable product type, read from the
 * "product" element of a product file. Built once and never changed afterwards.
 */
class PVPRODUCTPROPERTIES_EXPORT PvProductTypeDescription
{
public:
    //! Every field at its default: the description of an unknown product type.
    PvProductTypeDescription();
    //! Parses a "product" element; missing or wrong items keep their defaults.
    explicit PvProductTypeDescription(const QDomElement& product);
    virtual ~PvProductTypeDescription();

    [[nodiscard]] PvProductType productType() const { return m_productType; }
    [[nodiscard]] PvArticleClass articleClass() const { return m_articleClass; }
    [[nodiscard]] PvCoverType coverType() const { return m_coverType; }
    [[nodiscard]] bool isVario() const { return m_isVario; }
    [[nodiscard]] bool isTwoSided() const { return m_isTwoSided; }
    //! For a retired product: the product that replaces it; empty otherwise.
    [[nodiscard]] PvProductType replacedByProduct() const { return m_replacedByProduct; }
    //! For a retired product: how an old project is rewritten for its replacement.
    [[nodiscard]] PvXMLRewriterStrategy conversionStrategy() const { return m_conversionStrategy; }

    /*!
     * A product needs exactly one article class and a cover type; only the "prints" class
     * goes without a cover type.
     */
    [[nodiscard]] bool isValid() const;
    [[nodiscard]] bool isSimplex() const;
    [[nodiscard]] bool isVarioCard() const;
    [[nodiscard]] bool isEasyCard() const;

private:
    void initIdentity(const QDomElement& product);
    void initArticleClass(const QDomElement& product);
    void initReplacement(const QDomElement& product);

    PvProductType m_productType;
    PvArticleClass m_articleClass;
    PvCoverType m_coverType;
    bool m_isVario = false;
    bool m_isTwoSided = false;
    PvProductType m_replacedByProduct;
    PvXMLRewriterStrategy m_conversionStrategy;
};
