#pragma once

#include "PvDateRangeConstraint.h"
#include "PvJigType.h"
#include "PvPageNamingStyle.h"
#include "PvPageType.h"
#include "PvThematicCategorySet.h"
#include "PvUserPageTiltConfig.h"
#include "pvproductproperties_export.h"

#include <QDomElement>
#include <QExplicitlySharedDataPointer>

class PvProductEditorAbilitiesImpl;

/*!
 * What the design editor may offer for a product: assistant, conversion, page naming, user
 * tilt, start page, calendar date range, the change-design button, and per jig type whether
 * its elements are offered, may be rotated, fill each page, need the exact article and which
 * categories are allowed on which page type. Read once from "editorAbilities"; read-only.
 */
class PVPRODUCTPROPERTIES_EXPORT PvProductEditorAbilities
{
public:
    PvProductEditorAbilities();
    //! Reads an "editorAbilities" element; any other element gives the defaults.
    explicit PvProductEditorAbilities(const QDomElement& element);
    PvProductEditorAbilities(const PvProductEditorAbilities& other);
    PvProductEditorAbilities(PvProductEditorAbilities&& other) noexcept;
    PvProductEditorAbilities& operator=(const PvProductEditorAbilities& other);
    PvProductEditorAbilities& operator=(PvProductEditorAbilities&& other) noexcept;
    ~PvProductEditorAbilities();

    //! Leaves out the user page tilt and the date range constraint, on purpose.
    bool operator==(const PvProductEditorAbilities& other) const;
    bool operator!=(const PvProductEditorAbilities& other) const { return !(*this == other); }

    [[nodiscard]] bool hasAssistant() const;
    [[nodiscard]] bool isConvertable() const;
    [[nodiscard]] PvPageNamingStyle pageNamingStyle() const;
    [[nodiscard]] PvUserPageTiltConfig userPageTiltConfig() const;
    [[nodiscard]] int editorStartPage() const;
    [[nodiscard]] PvDateRangeConstraint dateRangeConstraint() const;
    [[nodiscard]] bool showChangeBaseDesignButton() const;

    //! Jig types not listed under "jigs" are enabled.
    [[nodiscard]] bool isJigEnabled(const PvJigType& jigType) const;
    [[nodiscard]] bool canRotateBackgrounds() const;
    [[nodiscard]] bool fullBackgroundOnEachPage() const;
    [[nodiscard]] bool requiresExactArticle(const PvJigType& jigType) const;
    //! The categories allowed for \a jigType on exactly \a pageType; empty when not limited.
    [[nodiscard]] PvThematicCategorySet allowedCategories(const PvJigType& jigType, const PvPageType& pageType) const;

private:
    QExplicitlySharedDataPointer<PvProductEditorAbilitiesImpl> d;
};
