#pragma once

#include "pvproductbase_export.h"

#include <QDomElement>
#include <QList>
#include <QString>

class PvXMLChildren;

/*! The article variants a product offers, from its "variants" element. */
class PVPRODUCTBASE_EXPORT PvConfiguredArticleVariantList
{
public:
    struct Variant {
        QString id;
        QString name;
        bool isDefault = false;
        friend bool operator==(const Variant& a, const Variant& b)
        {
            return a.id == b.id && a.name == b.name && a.isDefault == b.isDefault;
        }
        //! A hash of every field, for hash tables.
        friend size_t qHash(const Variant& variant, size_t seed = 0) noexcept
        {
            return qHashMulti(seed, variant.id, variant.name, variant.isDefault);
        }
    };

    PvConfiguredArticleVariantList() = default;
    //! One entry per "variants"/"variant" element below \a product.
    explicit PvConfiguredArticleVariantList(const QDomElement& product);
    //! The same from the children of "product", listed already by whoever reads the rest of it.
    explicit PvConfiguredArticleVariantList(const PvXMLChildren& product);

    [[nodiscard]] QList<Variant> variants() const { return m_variants; }
    [[nodiscard]] bool isEmpty() const { return m_variants.isEmpty(); }
    [[nodiscard]] qsizetype size() const { return m_variants.size(); }
    //! The variant marked default, or an empty one.
    [[nodiscard]] Variant defaultVariant() const;

    friend bool operator==(const PvConfiguredArticleVariantList& a, const PvConfiguredArticleVariantList& b) { return a.m_variants == b.m_variants; }

private:
    QList<Variant> m_variants;
};
