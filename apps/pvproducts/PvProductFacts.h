#pragma once

#include <QJsonObject>
#include <QStringList>

class PvProductSources;
class PvProductType;
class PvProductTypeDescription;

/*!
 * What "show" says about one product type: everything its description holds, the file that
 * won, the files it replaced and whether the product is retired.
 */
struct PvProductFacts {
    //! Null for a product type that is neither loaded nor retired.
    const PvProductTypeDescription* description = nullptr;
    //! The files that define the product, the winner first.
    QStringList files;
    bool legacy = false;

    //! Looks \a type up among the loaded products, then among the retired ones.
    [[nodiscard]] static PvProductFacts find(const PvProductType& type, const PvProductSources& sources);
    //! The facts as JSON, keyed as PvDescriptionJson::order() lists them.
    [[nodiscard]] QJsonObject json() const;
};
