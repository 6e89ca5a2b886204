#include "PvProductEditorAbilitiesImpl.h"

#include "PvXMLChildren.h"
#include "PvXMLParser.h"
#include "PvXMLChildElements.h"

#include <algorithm>

namespace {
// Stands for every jig type that a product does not list.
const PvJigEditorAbilities defaultAbilites;

// The entry of \a type in the jigs, sorted by type, or where it would go.
template <typename Iterator>
Iterator findJig(Iterator begin, Iterator end, const PvJigType& type)
{
    return std::lower_bound(begin, end, type, [](const auto& entry, const PvJigType& wanted) { return entry.first < wanted; });
}
}

PvProductEditorAbilitiesImpl::PvProductEditorAbilitiesImpl(const QDomElement& element)
{
    if (element.tagName() != QLatin1String("editorAbilities"))
        return;
    const PvXMLChildren children(element);
    hasAssistant = PvXMLParser::boolAttribute(children.first(u"assistant"), QStringLiteral("enabled"), false);
    convertable = PvXMLParser::boolAttribute(element, QStringLiteral("convertable"), true);
    pageNamingStyle = PvPageNamingStyle(children.first(u"pageNamingStyle").text());
    userPageTilt = PvUserPageTiltConfig(children.first(u"pageTilt"));
    editorStartPage = PvXMLParser::intText(element, QStringLiteral("startPage"), 0);
    dateRangeConstraint = PvDateRangeConstraint(children.first(u"dateRangeConstraint"));
    readJigs(children.first(u"jigs"));
}

void PvProductEditorAbilitiesImpl::readJigs(const QDomElement& jigsElement)
{
    // The button belongs to "jigs", not to "editorAbilities": without "jigs" it never shows.
    showChangeBaseDesignButton = PvXMLParser::boolAttribute(jigsElement, QStringLiteral("showChangeBaseDesignButton"), false);
    for (const QDomElement child : PvXMLChildElements(jigsElement)) {
        const PvJigType jigType(child.tagName());
        if (!jigType.isValid())
            continue;
        // A repeated jig replaces the earlier one.
        const auto it = findJig(jigs.begin(), jigs.end(), jigType);
        if (it != jigs.end() && it->first == jigType)
            it->second = PvJigEditorAbilities(child);
        else
            jigs.insert(it, { jigType, PvJigEditorAbilities(child) });
    }
    jigs.squeeze();
}

PvJigEditorAbilities PvProductEditorAbilitiesImpl::jigAbilities(const PvJigType& jigType) const
{
    const auto it = findJig(jigs.cbegin(), jigs.cend(), jigType);
    return it != jigs.cend() && it->first == jigType ? it->second : defaultAbilites;
}

bool PvProductEditorAbilitiesImpl::operator==(const PvProductEditorAbilitiesImpl& other) const
{
    return hasAssistant == other.hasAssistant && convertable == other.convertable
        && pageNamingStyle.value() == other.pageNamingStyle.value() && editorStartPage == other.editorStartPage
        && showChangeBaseDesignButton == other.showChangeBaseDesignButton && jigs == other.jigs;
}
