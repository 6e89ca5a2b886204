#pragma once

#include "PvArticleVariants.h"
#include "PvProductType.h"
#include "pvproductbase_export.h"

/*! Something that can tell whether a product type is valid; registered with PvProductCheckerRegistry. */
class PVPRODUCTBASE_EXPORT PvProductChecker
{
public:
    virtual ~PvProductChecker();
    [[nodiscard]] virtual bool isValid(const PvProductType& type) const = 0;
    //! The kind of checker, a flag matched against the masks of PvProductCheckerRegistry::isValid().
    [[nodiscard]] virtual int type() const = 0;
    [[nodiscard]] virtual bool isValidBoxStyle(const PvProductType& type, const PvArticleVariants& variants) const = 0;
};
