#include "PvProductEditorAbilitiesImpl.h"

#include "PvXMLParser.h"

namespace {
// Stands for every jig type that a product does not list.
const PvJigEditorAbilities defaultAbilites;
}

PvProductEditorAbilitiesImpl::PvProductEditorAbilitiesImpl(const QDomElement& element)
{
    if (element.tagName() != QLatin1String("editorAbilities"))
        return;
    hasAssistant = PvXMLParser::boolAttribute(element.firstChildElement(QStringLiteral("assistant")), QStringLiteral("enabled"), false);
    convertable = PvXMLParser::boolAttribute(element, QStringLiteral("convertable"), true);
    pageNamingStyle = PvPageNamingStyle(element.firstChildElement(QStringLiteral("pageNamingStyle")).text());
    userPageTilt = PvUserPageTiltConfig(element.firstChildElement(QStringLiteral("pageTilt")));
    editorStartPage = PvXMLParser::intText(element, QStringLiteral("startPage"), 0);
    dateRangeConstraint = PvDateRangeConstraint(element.firstChildElement(QStringLiteral("dateRangeConstraint")));
    readJigs(element.firstChildElement(QStringLiteral("jigs")));
}

void PvProductEditorAbilitiesImpl::readJigs(const QDomElement& jigsElement)
{
    // The button belongs to "jigs", not to "editorAbilities": without "jigs" it never shows.
    showChangeBaseDesignButton = PvXMLParser::boolAttribute(jigsElement, QStringLiteral("showChangeBaseDesignButton"), false);
    for (QDomElement child = jigsElement.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        const PvJigType jigType(child.tagName());
        if (jigType.isValid())
            jigs.insert(jigType, PvJigEditorAbilities(child));
    }
}

PvJigEditorAbilities PvProductEditorAbilitiesImpl::jigAbilities(const PvJigType& jigType) const
{
    return jigs.value(jigType, defaultAbilites);
}

bool PvProductEditorAbilitiesImpl::operator==(const PvProductEditorAbilitiesImpl& other) const
{
    return hasAssistant == other.hasAssistant && convertable == other.convertable
        && pageNamingStyle.value() == other.pageNamingStyle.value() && editorStartPage == other.editorStartPage
        && showChangeBaseDesignButton == other.showChangeBaseDesignButton && jigs == other.jigs;
}
