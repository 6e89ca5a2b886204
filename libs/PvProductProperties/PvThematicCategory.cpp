#include "PvThematicCategory.h"

#include "PvDirectoryConfig.h"
#include "PvThematicCategoryColorTable.h"
#include "PvThematicCategoryRegistry.h"
#include "PvThematicCategorySet.h"
#include "PvThematicCategoryTranslationRegistry.h"
#include "PvXMLLoader.h"

#include <QCoreApplication>

namespace {
const PvThematicCategoryColorTable& colorTable()
{
    static const PvThematicCategoryColorTable table(
        PvXMLLoader::loadDocumentElement(PvDirectoryConfig::instance().resource(QStringLiteral("colors.xml"), false)));
    return table;
}

const char* const allCategoryText = QT_TRANSLATE_NOOP("PvThematicCategory", "Alle anzeigen");
}

// The special categories resolve their key once; the name's key never changes.
#define PV_CACHED_CATEGORY(function, name)                                                                             \
    PvThematicCategory PvThematicCategory::function()                                                                  \
    {                                                                                                                  \
        static const PvThematicCategory category(QStringLiteral(name));                                                \
        return category;                                                                                               \
    }
#define PV_CATEGORY(function, name)                                                                                    \
    PvThematicCategory PvThematicCategory::function() { return PvThematicCategory(QStringLiteral(name)); }

PvThematicCategory::PvThematicCategory() = default;

PvThematicCategory::PvThematicCategory(const QString& name)
    : m_key(PvThematicCategoryRegistry::instance().key(name))
{
}

PvThematicCategory::PvThematicCategory(const PvThematicCategory& other) = default;
PvThematicCategory::PvThematicCategory(PvThematicCategory&& other) noexcept = default;
PvThematicCategory& PvThematicCategory::operator=(const PvThematicCategory& other) = default;
PvThematicCategory& PvThematicCategory::operator=(PvThematicCategory&& other) noexcept = default;
PvThematicCategory::~PvThematicCategory() = default;

bool PvThematicCategory::isEmpty() const
{
    return internalName().isEmpty();
}

QString PvThematicCategory::internalName() const
{
    return PvThematicCategoryRegistry::instance().internalName(m_key);
}

QString PvThematicCategory::visibleName() const
{
    return PvThematicCategoryRegistry::instance().visibleName(m_key);
}

void PvThematicCategory::setVisibleName(const QString& name)
{
    PvThematicCategoryRegistry::instance().setVisibleName(m_key, name);
}

const QHash<PvSpotColor, PvThematicCategory>& PvThematicCategory::spotColorHash()
{
    static const QHash<PvSpotColor, PvThematicCategory> mySpotColorHash {
        { PvSpotColor(PvSpotColor::None), PvThematicCategory() },
        { PvSpotColor(PvSpotColor::Gold), gold() },
        { PvSpotColor(PvSpotColor::RoseGold), roseGold() },
        { PvSpotColor(PvSpotColor::Silver), silver() },
        { PvSpotColor(PvSpotColor::Emboss), emboss() },
    };
    return mySpotColorHash;
}

PvThematicCategory PvThematicCategory::fromSpotColor(const PvSpotColor& spotColor)
{
    return spotColorHash().value(spotColor);
}

PvSpotColor PvThematicCategory::toSpotColor() const
{
    const auto& table = spotColorHash();
    for (auto it = table.cbegin(); it != table.cend(); ++it) {
        if (it.value() == *this)
            return it.key();
    }
    return PvSpotColor(PvSpotColor::None);
}

QColor PvThematicCategory::color(const QString& internalName)
{
    return colorTable().color(internalName);
}

QColor PvThematicCategory::color() const
{
    return color(internalName());
}

QString PvThematicCategory::colorSortKey() const
{
    return PvThematicCategoryColorTable::sortKey(color());
}

bool PvThematicCategory::compareAlphabetically(const PvThematicCategory& a, const PvThematicCategory& b)
{
    QString nameA = a.visibleName();
    QString nameB = b.visibleName();
    // Each side's flag marks the other side's name, so that user categories come first.
    if (a.isUserCategory())
        nameB.prepend(QLatin1Char('_'));
    if (b.isUserCategory())
        nameA.prepend(QLatin1Char('_'));
    return nameA < nameB;
}

PV_CACHED_CATEGORY(gold, "Gold")
PV_CACHED_CATEGORY(roseGold, "Roségold")
PV_CACHED_CATEGORY(silver, "Silber")
PV_CACHED_CATEGORY(emboss, "Effektlack")
PV_CACHED_CATEGORY(recycleBin, "Papierkorb")
PV_CACHED_CATEGORY(multiColor, "Multicolor")
PV_CACHED_CATEGORY(colorsCategory, "Farben")
PV_CACHED_CATEGORY(newInstalledCategory, "category-last-downloaded")
PV_CACHED_CATEGORY(flatColor, "category-colours")
PV_CACHED_CATEGORY(favourites, "Favoriten")
PV_CACHED_CATEGORY(suggestedByAI, "Passend zu Ihren Fotos")
PV_CACHED_CATEGORY(matchingToFlyleaf, "Passend zur Einband-Innenseite")
PV_CACHED_CATEGORY(userLayouts, "Meine Layouts")
PV_CACHED_CATEGORY(userCliparts, "Meine Cliparts")
PV_CACHED_CATEGORY(passpartouts, "InterneMasken")
PV_CACHED_CATEGORY(userMaskFrames, "Meine Rahmen")
PV_CACHED_CATEGORY(userMask, "Meine Masken")
PV_CACHED_CATEGORY(userBookStyles, "Meine Designvorlagen")
PV_CACHED_CATEGORY(frames, "InterneRahmen")
PV_CACHED_CATEGORY(fitsToSpotColor, "Stile mit gewählter Veredelung")
PV_CACHED_CATEGORY(category0, "0")
PV_CACHED_CATEGORY(category1, "1")
PV_CACHED_CATEGORY(category2, "2")
PV_CATEGORY(fitsToStyleV2Category, "category-fits-to-styleV2")
PV_CATEGORY(linnenCapable, "feature-linnen-capable")
PV_CATEGORY(pseudoCategoryInverted, "pseudo-category-inverted")
PV_CATEGORY(layoutLargeArea, "large")
PV_CATEGORY(layoutFullArea, "full")
PV_CATEGORY(layoutTop, "Oben")
PV_CATEGORY(layoutCentered, "Zentriert")
PV_CATEGORY(layoutWideMargin, "Breiter Rand")
PV_CATEGORY(layoutQuadratic, "Quadratisch")
PV_CATEGORY(layoutMiddle, "Mittig")
PV_CATEGORY(layoutElegant, "Elegant")
PV_CATEGORY(layoutClassic, "Klassisch")

PvThematicCategory PvThematicCategory::categoryAll()
{
    static const PvThematicCategory category(allText());
    return category;
}

QString PvThematicCategory::allText()
{
    return QCoreApplication::translate("PvThematicCategory", allCategoryText);
}

QString PvThematicCategory::multiColorBackgroundCategoryName()
{
    return QStringLiteral("Multicolor");
}

QString PvThematicCategory::passepartoutInternalCategoryName()
{
    return QStringLiteral("InterneMasken");
}

QString PvThematicCategory::framesInternalCategoryName()
{
    return QStringLiteral("InterneRahmen");
}

QString PvThematicCategory::flatColorBackgroundCategoryName()
{
    return PvThematicCategoryTranslationRegistry::instance().humanReadable(PvThematicCategory(QStringLiteral("Farben")));
}

bool PvThematicCategory::isRecycleBin() const
{
    return *this == recycleBin();
}

bool PvThematicCategory::isFavourite() const
{
    return *this == favourites();
}

bool PvThematicCategory::isSuggestedByAI() const
{
    return *this == suggestedByAI();
}

bool PvThematicCategory::isCategoryAll() const
{
    return *this == categoryAll();
}

bool PvThematicCategory::isSpotColorCategory() const
{
    return *this == gold() || *this == silver() || *this == emboss() || *this == roseGold();
}

bool PvThematicCategory::isPrimaryCategory() const
{
    return *this == passpartouts() || *this == frames();
}

bool PvThematicCategory::isUserCategory() const
{
    return *this == userCliparts() || *this == userMaskFrames() || *this == userMask() || *this == userBookStyles()
        || *this == userLayouts();
}

bool PvThematicCategory::isSmartLayoutCategory() const
{
    return PvThematicCategorySet::allSmartLayoutCategories().contains(*this);
}

QDebug operator<<(QDebug debug, const PvThematicCategory& category)
{
    debug << "Category name: " << category.internalName() << "visible name: " << category.visibleName();
    return debug;
}
