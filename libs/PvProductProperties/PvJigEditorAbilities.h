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
    //! Reads one jig element with its "categories" children; missing attributes take their defaults.
    explicit PvJigEditorAbilities(const QDomElement& element);
    //! Copies share their data.
    //! @{
    PvJigEditorAbilities(const PvJigEditorAbilities& other);
    PvJigEditorAbilities(PvJigEditorAbilities&& other) noexcept;
    PvJigEditorAbilities& operator=(const PvJigEditorAbilities& other);
    PvJigEditorAbilities& operator=(PvJigEditorAbilities&& other) noexcept;
    ~PvJigEditorAbilities();
    //! @}

    //! Equal in every field.
    bool operator==(const PvJigEditorAbilities& other) const;
    //! Differs in some field.
    bool operator!=(const PvJigEditorAbilities& other) const { return !(*this == other); }

    //! Whether the editor offers this jig type ("enabled", default true).
    [[nodiscard]] bool isEnabled() const;
    //! Whether its elements may be rotated ("rotatable", default false).
    [[nodiscard]] bool rotatable() const;
    //! Whether one element fills each whole page ("fullOnEachPage", default true).
    [[nodiscard]] bool fullOnEachPage() const;
    //! Whether elements must match the exact article ("exactArticle", default false).
    [[nodiscard]] bool requiresExactArticle() const;
    /*!
     * The category names stored for exactly \a pageType. Lists are stored per single page type,
     * so a combined page type finds nothing.
     */
    [[nodiscard]] QStringList allowedCategories(const PvPageType& pageType) const;

private:
    QSharedDataPointer<PvJigEditorAbilitiesImpl> d;
};
