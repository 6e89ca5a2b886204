#include "PvProductEditorAbilities.h"

#include "PvProductEditorAbilitiesImpl.h"

PvProductEditorAbilities::PvProductEditorAbilities()
    : d(new PvProductEditorAbilitiesImpl)
{
}

PvProductEditorAbilities::PvProductEditorAbilities(const QDomElement& element)
    : d(new PvProductEditorAbilitiesImpl(element))
{
}

PvProductEditorAbilities::PvProductEditorAbilities(const PvProductEditorAbilities& other) = default;
PvProductEditorAbilities::PvProductEditorAbilities(PvProductEditorAbilities&& other) noexcept = default;
PvProductEditorAbilities& PvProductEditorAbilities::operator=(const PvProductEditorAbilities& other) = default;
PvProductEditorAbilities& PvProductEditorAbilities::operator=(PvProductEditorAbilities&& other) noexcept = default;
PvProductEditorAbilities::~PvProductEditorAbilities() = default;

bool PvProductEditorAbilities::operator==(const PvProductEditorAbilities& other) const
{
    return d == other.d || *d == *other.d;
}

bool PvProductEditorAbilities::hasAssistant() const
{
    return d->hasAssistant;
}

bool PvProductEditorAbilities::isConvertable() const
{
    return d->convertable;
}

PvPageNamingStyle PvProductEditorAbilities::pageNamingStyle() const
{
    return d->pageNamingStyle;
}

PvUserPageTiltConfig PvProductEditorAbilities::userPageTiltConfig() const
{
    return d->userPageTilt;
}

int PvProductEditorAbilities::editorStartPage() const
{
    return d->editorStartPage;
}

PvDateRangeConstraint PvProductEditorAbilities::dateRangeConstraint() const
{
    return d->dateRangeConstraint;
}

bool PvProductEditorAbilities::showChangeBaseDesignButton() const
{
    return d->showChangeBaseDesignButton;
}

bool PvProductEditorAbilities::isJigEnabled(const PvJigType& jigType) const
{
    return d->jigAbilities(jigType).isEnabled();
}

bool PvProductEditorAbilities::canRotateBackgrounds() const
{
    return d->jigAbilities(PvJigType(PvJigTypeBackground)).rotatable();
}

bool PvProductEditorAbilities::fullBackgroundOnEachPage() const
{
    return d->jigAbilities(PvJigType(PvJigTypeBackground)).fullOnEachPage();
}

bool PvProductEditorAbilities::requiresExactArticle(const PvJigType& jigType) const
{
    return d->jigAbilities(jigType).requiresExactArticle();
}

PvThematicCategorySet PvProductEditorAbilities::allowedCategories(const PvJigType& jigType, const PvPageType& pageType) const
{
    return PvThematicCategorySet(d->jigAbilities(jigType).allowedCategories(pageType));
}
