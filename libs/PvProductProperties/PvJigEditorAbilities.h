#pragma once

#include "PvPageType.h"
#include "pvproductproperties_export.h"

#include <QDomElement>
#include <QSharedDataPointer>
#include <QStringList>

class PvJigEditorAbilitiesImpl;

/*!
 * What the editor may do with the design elements of one jig type of a product: whether they
 * are offered, may be rotated, must fill each page, must match the exact article, and which
 * thematic categories are allowed per page type. Read from one child of a product's "jigs".
 */
class PVPRODUCTPROPERTIES_EXPORT PvJigEditorAbilities
{
public:
    PvJigEditorAbilities();
    explicit PvJigEditorAbilities(const QDomElement& element);
    PvJigEditorAbilities(const PvJigEditorAbilities& other);
    PvJigEditorAbilities(PvJigEditorAbilities&& other) noexcept;
    PvJigEditorAbilities& operator=(const PvJigEditorAbilities& other);
    PvJigEditorAbilities& operator=(PvJigEditorAbilities&& other) noexcept;
    ~PvJigEditorAbilities();

    bool operator==(const PvJigEditorAbilities& other) const;
    bool operator!=(const PvJigEditorAbilities& other) const { return !(*this == other); }

    [[nodiscard]] bool isEnabled() const;
    [[nodiscard]] bool rotatable() const;
    [[nodiscard]] bool fullOnEachPage() const;
    [[nodiscard]] bool requiresExactArticle() const;
    /*!
     * The category names stored for exactly \a pageType. Lists are stored per single page type,
     * so a combined page type finds nothing.
     */
    [[nodiscard]] QStringList allowedCategories(const PvPageType& pageType) const;

private:
    QSharedDataPointer<PvJigEditorAbilitiesImpl> d;
};
