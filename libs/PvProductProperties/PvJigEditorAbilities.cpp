#include "PvJigEditorAbilities.h"

#include "PvBlockPool.h"
#include "PvProductDiagnostics.h"

#include "PvValuePool.h"
#include "PvXMLParser.h"
#include "PvXMLChildElements.h"

#include <QMap>
#include <QVarLengthArray>
#include <QSharedData>
#include <QStringTokenizer>

#include <array>
#include <tuple>

class PvJigEditorAbilitiesImpl : public QSharedData, public PvBlockPoolAllocated
{
public:
    // One "categories" element: the names it gives every page type bit it lists. Kept as
    // written and split when asked: "all" would otherwise copy its names for every page type
    // there is, and one string costs a third of a list of its names.
    struct Categories
    {
        quint32 pageTypes = 0;
        QString text;
        [[nodiscard]] QStringList names() const { return text.split(QLatin1Char(','), Qt::SkipEmptyParts); }
    };

    //! The page type bits mapped to their names, the last element naming a bit winning.
    [[nodiscard]] QMap<PvPageTypeEnum, QStringList> byPageType() const
    {
        QMap<PvPageTypeEnum, QStringList> map;
        for (const Categories& entry : categories) {
            for (const PvPageTypeEnum bit : pvSplitEnumToBits(PvPageTypeEnum(entry.pageTypes)))
                map.insert(bit, entry.names());
        }
        return map;
    }

    bool enabled = true;
    bool rotatable = false;
    bool fullOnEachPage = true;
    bool requiresExactArticle = false;
    // Inline: most jigs list one or two; a list of their own would be one more allocation
    // kept for every jig of every product.
    QVarLengthArray<Categories, 2> categories;
};

namespace {
PvJigEditorAbilitiesImpl::Categories readCategories(const QDomElement& element)
{
    PvJigEditorAbilitiesImpl::Categories entry;
    const PvPageType pageType(PvXMLParser::attribute(element, QStringLiteral("pageType")));
    // Blanks around names are kept: they are part of the category names as written.
    entry.text = PvValuePool::shared(element.text());
    if (PvProductDiagnostics::listening()) {
        for (const QStringView name : QStringView(entry.text).tokenize(u',', Qt::SkipEmptyParts)) {
            if (name != name.trimmed())
                PvProductDiagnostics::report(PvDiagnostic::Error, element,
                                             QStringLiteral("the text of \"categories\": %1 has blanks around it, so it names no category").arg(PvDiagnostics::quoted(name.toString())));
        }
    }
    PvProductDiagnostics::checkEnum<PvPageType>(element, QStringLiteral("pageType"), "page type");
    entry.pageTypes = pvSplitBitsMask(pageType.value());
    return entry;
}

// Abilities without categories differ only in their four flags; every product's jigs of one
// combination share its one copy.
QSharedDataPointer<PvJigEditorAbilitiesImpl> plainAbilities(bool enabled, bool rotatable, bool fullOnEachPage, bool requiresExactArticle)
{
    static const auto table = [] {
        std::array<QSharedDataPointer<PvJigEditorAbilitiesImpl>, 16> all;
        for (int flags = 0; flags < 16; ++flags) {
            auto* impl = new PvJigEditorAbilitiesImpl;
            impl->enabled = flags & 1;
            impl->rotatable = flags & 2;
            impl->fullOnEachPage = flags & 4;
            impl->requiresExactArticle = flags & 8;
            all[flags] = QSharedDataPointer<PvJigEditorAbilitiesImpl>(impl);
        }
        return all;
    }();
    return table[int(enabled) | int(rotatable) << 1 | int(fullOnEachPage) << 2 | int(requiresExactArticle) << 3];
}
}

PvJigEditorAbilities::PvJigEditorAbilities()
    : d(plainAbilities(true, false, true, false))
{
}

PvJigEditorAbilities::PvJigEditorAbilities(const QDomElement& element)
{
    // Most jigs set one or two of the four flags.
    PvXMLAttributes attributes(element);
    const bool enabled = PvXMLParser::boolAttribute(attributes, QStringLiteral("enabled"), true);
    const bool rotatable = PvXMLParser::boolAttribute(attributes, QStringLiteral("rotatable"), false);
    const bool fullOnEachPage = PvXMLParser::boolAttribute(attributes, QStringLiteral("fullOnEachPage"), true);
    const bool requiresExactArticle = PvXMLParser::boolAttribute(attributes, QStringLiteral("exactArticle"), false);
    d = plainAbilities(enabled, rotatable, fullOnEachPage, requiresExactArticle);
    const QString tag = QStringLiteral("categories");
    for (const QDomElement child : PvXMLChildElements(element, tag)) {
        PvJigEditorAbilitiesImpl::Categories entry = readCategories(child);
        if (entry.pageTypes != 0)
            d->categories.append(std::move(entry)); // the first one detaches from the shared copy
    }
}

PvJigEditorAbilities::PvJigEditorAbilities(const PvJigEditorAbilities& other) = default;
PvJigEditorAbilities::PvJigEditorAbilities(PvJigEditorAbilities&& other) noexcept = default;
PvJigEditorAbilities& PvJigEditorAbilities::operator=(const PvJigEditorAbilities& other) = default;
PvJigEditorAbilities& PvJigEditorAbilities::operator=(PvJigEditorAbilities&& other) noexcept = default;
PvJigEditorAbilities::~PvJigEditorAbilities() = default;

bool PvJigEditorAbilities::operator==(const PvJigEditorAbilities& other) const
{
    if (d == other.d)
        return true;
    return std::tie(d->enabled, d->rotatable, d->fullOnEachPage, d->requiresExactArticle)
        == std::tie(other.d->enabled, other.d->rotatable, other.d->fullOnEachPage, other.d->requiresExactArticle)
        && d->byPageType() == other.d->byPageType();
}

bool PvJigEditorAbilities::isEnabled() const
{
    return d->enabled;
}

bool PvJigEditorAbilities::rotatable() const
{
    return d->rotatable;
}

bool PvJigEditorAbilities::fullOnEachPage() const
{
    return d->fullOnEachPage;
}

bool PvJigEditorAbilities::requiresExactArticle() const
{
    return d->requiresExactArticle;
}

QStringList PvJigEditorAbilities::allowedCategories(const PvPageType& pageType) const
{
    // Only single bits were named; any other value names nothing.
    const quint32 bit = pageType.toUnderlying();
    if ((bit & (bit - 1)) != 0)
        return {};
    for (auto entry = d->categories.crbegin(); entry != d->categories.crend(); ++entry) {
        if (entry->pageTypes & bit)
            return entry->names();
    }
    return {};
}
