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
    //! Values share their read-only data; copies are cheap.
    //! @{
    PvProductEditorAbilities(const PvProductEditorAbilities& other);
    PvProductEditorAbilities(PvProductEditorAbilities&& other) noexcept;
    PvProductEditorAbilities& operator=(const PvProductEditorAbilities& other);
    PvProductEditorAbilities& operator=(PvProductEditorAbilities&& other) noexcept;
    ~PvProductEditorAbilities();
    //! @}

    //! Leaves out the user page tilt and the date range constraint, on purpose.
    bool operator==(const PvProductEditorAbilities& other) const;
    //! The opposite of ==.
    bool operator!=(const PvProductEditorAbilities& other) const { return !(*this == other); }

    //! Whether the editor offers its assistant ("hasAssistant").
    [[nodiscard]] bool hasAssistant() const;
    //! Whether a project may be converted to another product ("isConvertable").
    [[nodiscard]] bool isConvertable() const;
    //! How the editor names the pages ("pageNamingStyle").
    [[nodiscard]] PvPageNamingStyle pageNamingStyle() const;
    //! Which pages the user may turn ("pageTilt").
    [[nodiscard]] PvUserPageTiltConfig userPageTiltConfig() const;
    //! The page the editor opens first ("startPage", default 0).
    [[nodiscard]] int editorStartPage() const;
    //! The dates a calendar may start at ("dateRangeConstraint").
    [[nodiscard]] PvDateRangeConstraint dateRangeConstraint() const;
    //! Whether the editor shows the button to change the base design.
    [[nodiscard]] bool showChangeBaseDesignButton() const;

    //! Jig types not listed under "jigs" are enabled.
    [[nodiscard]] bool isJigEnabled(const PvJigType& jigType) const;
    //! Whether backgrounds may be rotated.
    [[nodiscard]] bool canRotateBackgrounds() const;
    //! Whether one background fills each whole page.
    [[nodiscard]] bool fullBackgroundOnEachPage() const;
    //! Whether content of \a jigType must match the article exactly.
    [[nodiscard]] bool requiresExactArticle(const PvJigType& jigType) const;
    //! The categories allowed for \a jigType on exactly \a pageType; empty when not limited.
    [[nodiscard]] PvThematicCategorySet allowedCategories(const PvJigType& jigType, const PvPageType& pageType) const;

private:
    QExplicitlySharedDataPointer<PvProductEditorAbilitiesImpl> d;
};
