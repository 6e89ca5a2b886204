#pragma once

#include "PvArticleClass.h"
#include "PvConfiguredArticleVariantList.h"
#include "PvCoverType.h"
#include "PvEmptyMeansAllSet.h"
#include "PvJigType.h"
#include "PvPageTypeList.h"
#include "PvProductChecker.h"
#include "PvProductClassificationManager.h"
#include "PvProductType.h"
#include "PvProductTypeList.h"
#include "PvThematicCategorySet.h"
#include "pvproductproperties_export.h"

#include <QDir>
#include <QHash>
#include <QList>
#include <QString>

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

    //! Whether \a type has a valid description here.
    [[nodiscard]] bool isValid(const PvProductType& type) const override;
    //! The checker kind of product type registries.
    [[nodiscard]] int type() const override;
    //! Always true: product type registries accept every box style.
    [[nodiscard]] bool isValidBoxStyle(const PvProductType& type, const PvArticleVariants& variants) const override;
    //! The directories to load from; a product type of an earlier directory wins.
    [[nodiscard]] virtual QList<QDir> supervisedDirs() const = 0;

    //! The description of \a type, or the void description when the type is unknown.
    [[nodiscard]] const PvProductTypeDescription* description(const PvProductType& type) const;
    //! The description that lookups of unknown types yield.
    [[nodiscard]] const PvProductTypeDescription* voidDescription() const;
    //! The same as isValid().
    [[nodiscard]] bool exists(const PvProductType& type) const;
    //! The article class of \a type; 0 when unknown.
    [[nodiscard]] PvArticleClass articleClass(const PvProductType& type) const;
    //! Whether the type's article class shares a bit with \a articleClass.
    [[nodiscard]] bool hasArticleClass(const PvProductType& type, const PvArticleClass& articleClass) const;
    //! Every loaded product type, valid or not, in no particular order.
    [[nodiscard]] PvProductTypeList allProducts() const;
    //! The loaded product types that the application's product checkers accept.
    [[nodiscard]] PvProductTypeList allAvailableProducts() const;
    //! The first type of \a types with a valid description; an empty type when there is none.
    [[nodiscard]] PvProductType firstValidProduct(const PvProductTypeList& types) const;

    //! Whether the pages of \a type lie side by side.
    [[nodiscard]] bool horizontalPages(const PvProductType& type) const;
    //! The configured article variants of \a type.
    [[nodiscard]] PvConfiguredArticleVariantList variants(const PvProductType& type) const;
    //! Whether one background fills each whole page of \a type.
    [[nodiscard]] bool fullBackgroundOnEachPage(const PvProductType& type) const;
    //! The production numbers of a project of \a pageCount pages; see the description's.
    [[nodiscard]] QList<int> productionNumberingList(const PvProductType& type, int pageCount) const;
    //! The concrete page list of a project of \a pageCount pages; a negative count counts as 0.
    [[nodiscard]] PvPageTypeList pageTypes(const PvProductType& type, int pageCount) const;
    //! Whether the product limits the categories of \a jigType on \a pageType at all.
    [[nodiscard]] bool limitJigCategories(const PvProductType& type, const PvPageType& pageType, const PvJigType& jigType) const;
    //! The categories allowed for \a jigType on \a pageType; empty when not limited.
    [[nodiscard]] PvThematicCategorySet allowedJigCategories(const PvProductType& type, const PvPageType& pageType, const PvJigType& jigType) const;
    //! Whether backgrounds on \a pageType are limited to exactly one category.
    [[nodiscard]] bool thereIsOnlyOneAllowedBackgroundCategory(const PvProductType& type, const PvPageType& pageType) const;

    /*!
     * The loaded products whose article class and cover type the filters accept. Both filters
     * empty give the empty set at once, which, like any empty answer, means every product.
     */
    [[nodiscard]] PvEmptyMeansAllSet<PvProductType> findProducts(const PvEmptyMeansAllSet<PvArticleClass>& articleClasses,
                                                                 const PvEmptyMeansAllSet<PvCoverType>& coverTypes) const;
    //! The loaded products classified into \a group.
    [[nodiscard]] PvProductTypeList findAllIn(const PvProductClassificationGroup& group) const;
    //! A manager of the classifications of the products sharing a bit of \a articleClass.
    [[nodiscard]] PvProductClassificationManager createProductClassifationManager(const PvArticleClass& articleClass) const;
    /*!
     * \a fileNames, one per page position, put into the order of the pages' production
     * numbers (ties keep their positions). Unchanged for an invalid type.
     */
    [[nodiscard]] QList<QString> sortPageFileNameListInInternOrder(const PvProductType& type, const QList<QString>& fileNames) const;

protected:
    PvProductTypeConfigRegistryAbstract();
    //! Reads supervisedDirs() in order; a type already known is never replaced.
    void load();

private:
    QHash<PvProductType, PvProductTypeDescription*> m_descriptions;
    std::unique_ptr<PvProductTypeDescription> m_voidDescription;
};
