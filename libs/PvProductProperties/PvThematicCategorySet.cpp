#include "PvThematicCategorySet.h"

#include "PvXMLBuilder.h"

#include <QCoreApplication>

#include <algorithm>

namespace {
const char* const variousText = QT_TRANSLATE_NOOP("PvThematicCategorySet", "Sonstige");
}

PvThematicCategorySet::PvThematicCategorySet() = default;

PvThematicCategorySet::PvThematicCategorySet(const QStringList& names)
{
    for (const QString& name : names)
        insert(PvThematicCategory(name));
}

PvThematicCategorySet::PvThematicCategorySet(const QList<PvThematicCategory>& categories)
{
    for (const PvThematicCategory& category : categories)
        insert(category);
}

PvThematicCategorySet::PvThematicCategorySet(const PvThematicCategory& category)
{
    insert(category);
}

PvThematicCategorySet PvThematicCategorySet::buildFromCSV(const QString& text)
{
    PvThematicCategorySet categories;
    const QStringList parts = text.split(QLatin1Char(','));
    for (const QString& part : parts) {
        if (!part.isEmpty())
            categories.insert(PvThematicCategory(part));
    }
    return categories;
}

PvThematicCategorySet PvThematicCategorySet::fromSpotColors(const QList<PvSpotColor>& spotColors)
{
    PvThematicCategorySet categories;
    for (const PvSpotColor& spotColor : spotColors)
        categories.insert(PvThematicCategory::fromSpotColor(spotColor));
    return categories;
}

PvThematicCategorySet PvThematicCategorySet::createRecycleBinCategory()
{
    return PvThematicCategorySet(PvThematicCategory::recycleBin());
}

PvThematicCategorySet PvThematicCategorySet::allCategorySet()
{
    return PvThematicCategorySet(PvThematicCategory::categoryAll());
}

const PvThematicCategorySet& PvThematicCategorySet::specialCategories()
{
    static const PvThematicCategorySet categories(QList<PvThematicCategory> {
        PvThematicCategory::categoryAll(), PvThematicCategory::recycleBin(), PvThematicCategory::multiColor(),
        PvThematicCategory::favourites(), PvThematicCategory::passpartouts(), PvThematicCategory::frames() });
    return categories;
}

const PvThematicCategorySet& PvThematicCategorySet::allKnownSpotColorCategoriesSet()
{
    static const PvThematicCategorySet categories(QList<PvThematicCategory> {
        PvThematicCategory::gold(), PvThematicCategory::roseGold(), PvThematicCategory::silver(),
        PvThematicCategory::emboss() });
    return categories;
}

const PvThematicCategorySet& PvThematicCategorySet::createCategories01()
{
    static const PvThematicCategorySet categories(
        QList<PvThematicCategory> { PvThematicCategory::category0(), PvThematicCategory::category1() });
    return categories;
}

const PvThematicCategorySet& PvThematicCategorySet::allSmartLayoutCategories()
{
    static const PvThematicCategorySet categories(QList<PvThematicCategory> {
        PvThematicCategory::layoutLargeArea(), PvThematicCategory::layoutFullArea(), PvThematicCategory::layoutTop(),
        PvThematicCategory::layoutCentered(), PvThematicCategory::layoutWideMargin(),
        PvThematicCategory::layoutQuadratic(), PvThematicCategory::layoutMiddle(), PvThematicCategory::layoutElegant(),
        PvThematicCategory::layoutClassic() });
    return categories;
}

const PvThematicCategorySet& PvThematicCategorySet::categoriesWithIcon()
{
    static const PvThematicCategorySet categories = [] {
        PvThematicCategorySet withIcon(QList<PvThematicCategory> { PvThematicCategory::gold(),
                                                                   PvThematicCategory::silver(),
                                                                   PvThematicCategory::roseGold(),
                                                                   PvThematicCategory::emboss() });
        withIcon.unite(allSmartLayoutCategories());
        return withIcon;
    }();
    return categories;
}

bool PvThematicCategorySet::insertOnlyOnce(const PvThematicCategory& category)
{
    if (contains(category))
        return true;
    insert(category);
    return false;
}

void PvThematicCategorySet::insertNonEmpty(const PvThematicCategory& category)
{
    if (!category.isEmpty())
        insert(category);
}

void PvThematicCategorySet::insertCategoryVarious()
{
    if (isEmpty())
        insert(PvThematicCategory(QCoreApplication::translate("PvThematicCategorySet", variousText)));
}

PvThematicCategorySet PvThematicCategorySet::plusFavourites() const
{
    PvThematicCategorySet categories(*this);
    categories.insert(PvThematicCategory::favourites());
    return categories;
}

PvThematicCategorySet& PvThematicCategorySet::subtract(const PvThematicCategorySet& other)
{
    const QStringList names = other.toDataStringList();
    QList<PvThematicCategory> victims;
    for (const PvThematicCategory& category : std::as_const(*this)) {
        if (names.contains(category.internalName()))
            victims.append(category);
    }
    for (const PvThematicCategory& victim : std::as_const(victims))
        remove(victim);
    return *this;
}

bool PvThematicCategorySet::contains(const PvThematicCategory& category) const
{
    return std::any_of(cbegin(), cend(), [&](const PvThematicCategory& element) { return element == category; });
}

bool PvThematicCategorySet::contains(const PvThematicCategorySet& other) const
{
    return std::all_of(other.cbegin(), other.cend(), [this](const PvThematicCategory& c) { return contains(c); });
}

bool PvThematicCategorySet::containsAtLeastOne(const PvThematicCategorySet& other) const
{
    return std::any_of(other.cbegin(), other.cend(), [this](const PvThematicCategory& c) { return contains(c); });
}

bool PvThematicCategorySet::containsOnlyFavouritesAnd(const PvThematicCategorySet& other) const
{
    return std::all_of(cbegin(), cend(), [&other](const PvThematicCategory& c) {
        return c.isFavourite() || c.isSuggestedByAI() || other.contains(c);
    });
}

bool PvThematicCategorySet::containsOnlySpotColorCategories() const
{
    return std::all_of(cbegin(), cend(), [](const PvThematicCategory& c) { return c.isSpotColorCategory(); });
}

bool PvThematicCategorySet::containsCategoryAll() const
{
    return std::any_of(cbegin(), cend(), [](const PvThematicCategory& c) { return c.isCategoryAll(); });
}

bool PvThematicCategorySet::isCategory(const PvThematicCategory& category) const
{
    return size() == 1 && *cbegin() == category;
}

bool PvThematicCategorySet::isOnlySuggestedByAI() const
{
    return isCategory(PvThematicCategory::suggestedByAI());
}

bool PvThematicCategorySet::isOnlyFitsToStyleV2Category() const
{
    return isCategory(PvThematicCategory::fitsToStyleV2Category());
}

bool PvThematicCategorySet::isOnlyMultiColor() const
{
    return isCategory(PvThematicCategory::multiColor());
}

PvSpotColor PvThematicCategorySet::spotColor() const
{
    return size() == 1 ? cbegin()->toSpotColor() : PvSpotColor(PvSpotColor::None);
}

PvThematicCategory PvThematicCategorySet::preferredCategory(bool preferMultiColor) const
{
    if (isEmpty())
        return {};
    if (contains(PvThematicCategory::userCliparts()))
        return PvThematicCategory::userCliparts();
    if (contains(PvThematicCategory::userBookStyles()))
        return PvThematicCategory::userBookStyles();
    // The special categories are interned here even when multicolour wins below.
    PvThematicCategorySet rest(*this);
    rest.subtract(specialCategories());
    const PvThematicCategory first = rest.isEmpty() ? *cbegin() : *rest.cbegin();
    if (preferMultiColor && contains(PvThematicCategory::multiColor()))
        return PvThematicCategory::multiColor();
    return first;
}

QStringList PvThematicCategorySet::toDataStringList() const
{
    QStringList names;
    names.reserve(size());
    for (const PvThematicCategory& category : *this)
        names.append(category.internalName());
    return names;
}

void PvThematicCategorySet::toXml(QDomElement& parent) const
{
    for (const PvThematicCategory& category : *this)
        PvXMLBuilder::buildDomElement(parent, QStringLiteral("subcategory"), category.internalName());
}

QDebug operator<<(QDebug debug, const PvThematicCategorySet& categories)
{
    if (categories.isEmpty())
        return debug << "EMPTY!\n";
    for (const PvThematicCategory& category : categories)
        debug << category << "\n";
    return debug;
}
