#include "PvJigEditorAbilities.h"

#include "PvProductDiagnostics.h"

#include "PvXMLParser.h"

#include <QMap>
#include <QSharedData>

#include <tuple>

class PvJigEditorAbilitiesImpl : public QSharedData
{
public:
    bool enabled = true;
    bool rotatable = false;
    bool fullOnEachPage = true;
    bool requiresExactArticle = false;
    // A few page types each: a map costs a node each, a hash a table for dozens from the start.
    QMap<PvPageTypeEnum, QStringList> categories;
};

namespace {
void readCategories(const QDomElement& element, QMap<PvPageTypeEnum, QStringList>& categories)
{
    const PvPageType pageType(PvXMLParser::attribute(element, QStringLiteral("pageType")));
    // Blanks around names are kept: they are part of the category names as written.
    const QStringList names = element.text().split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString& name : names) {
        if (PvProductDiagnostics::listening() && name != name.trimmed())
            PvProductDiagnostics::report(PvDiagnostic::Error, element,
                                         QStringLiteral("the text of \"categories\": %1 has blanks around it, so it names no category").arg(PvDiagnostics::quoted(name)));
    }
    PvProductDiagnostics::checkEnum<PvPageType>(element, QStringLiteral("pageType"), "page type");
    for (PvPageTypeEnum bit : pageType.splitToBitsSorted()) {
        if (PvPageType(bit).isValid())
            categories.insert(bit, names);
    }
}
}

PvJigEditorAbilities::PvJigEditorAbilities()
    : d(new PvJigEditorAbilitiesImpl)
{
}

PvJigEditorAbilities::PvJigEditorAbilities(const QDomElement& element)
    : PvJigEditorAbilities()
{
    d->enabled = PvXMLParser::boolAttribute(element, QStringLiteral("enabled"), true);
    d->rotatable = PvXMLParser::boolAttribute(element, QStringLiteral("rotatable"), false);
    d->fullOnEachPage = PvXMLParser::boolAttribute(element, QStringLiteral("fullOnEachPage"), true);
    d->requiresExactArticle = PvXMLParser::boolAttribute(element, QStringLiteral("exactArticle"), false);
    const QString tag = QStringLiteral("categories");
    for (QDomElement child = element.firstChildElement(tag); !child.isNull(); child = child.nextSiblingElement(tag))
        readCategories(child, d->categories);
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
    return std::tie(d->enabled, d->rotatable, d->fullOnEachPage, d->requiresExactArticle, d->categories)
        == std::tie(other.d->enabled, other.d->rotatable, other.d->fullOnEachPage, other.d->requiresExactArticle, other.d->categories);
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
    return d->categories.value(pageType.value());
}
