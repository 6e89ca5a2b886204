#pragma once

#include "PvArticleClass.h"
#include "PvProductChecker.h"
#include "PvProductType.h"
#include "PvProductTypeList.h"
#include "pvproductproperties_export.h"

#include <QDir>
#include <QHash>
#include <QList>

#include <memory>

class PvProductTypeDescription;

/*!
 * The product type descriptions of a set of products directories, keyed by product type,
 * and the answers about a product type that need no more than its description. Lookups
 * never yield null: an unknown type is answered from the void description. Also a product
 * checker, so that the application can ask about validity without knowing about files.
 */
class PVPRODUCTPROPERTIES_EXPORT PvProductTypeConfigRegistryAbstract : public PvProductChecker
{
public:
    ~PvProductTypeConfigRegistryAbstract() override;
    PvProductTypeConfigRegistryAbstract(const PvProductTypeConfigRegistryAbstract&) = delete;
    PvProductTypeConfigRegistryAbstract& operator=(const PvProductTypeConfigRegistryAbstract&) = delete;

    [[nodiscard]] bool isValid(const PvProductType& type) const override;
    //! The checker kind of product type registries.
    [[nodiscard]] int type() const override;
    [[nodiscard]] bool isValidBoxStyle(const PvProductType& type, const PvArticleVariants& variants) const override;
    //! The directories to load from; a product type of an earlier directory wins.
    [[nodiscard]] virtual QList<QDir> supervisedDirs() const = 0;

    //! The description of \a type, or the void description when the type is unknown.
    [[nodiscard]] const PvProductTypeDescription* description(const PvProductType& type) const;
    [[nodiscard]] const PvProductTypeDescription* voidDescription() const;
    //! The same as isValid().
    [[nodiscard]] bool exists(const PvProductType& type) const;
    [[nodiscard]] PvArticleClass articleClass(const PvProductType& type) const;
    //! Whether the type's article class shares a bit with \a articleClass.
    [[nodiscard]] bool hasArticleClass(const PvProductType& type, const PvArticleClass& articleClass) const;
    //! Every loaded product type, valid or not, in no particular order.
    [[nodiscard]] PvProductTypeList allProducts() const;
    //! The loaded product types that the application's product checkers accept.
    [[nodiscard]] PvProductTypeList allAvailableProducts() const;
    //! The first type of \a types with a valid description; an empty type when there is none.
    [[nodiscard]] PvProductType firstValidProduct(const PvProductTypeList& types) const;

protected:
    PvProductTypeConfigRegistryAbstract();
    //! Reads supervisedDirs() in order; a type already known is never replaced.
    void load();

private:
    QHash<PvProductType, PvProductTypeDescription*> m_descriptions;
    std::unique_ptr<PvProductTypeDescription> m_voidDescription;
};
