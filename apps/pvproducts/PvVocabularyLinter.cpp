// The walk over a product file against the names and value kinds the library reads.
#include "PvProductLinter.h"

#include "PvArticleClass.h"
#include "PvCoverType.h"
#include "PvDiagnostics.h"
#include "PvImageFXs.h"
#include "PvJigType.h"
#include "PvPageAlignment.h"
#include "PvPageNamingStyle.h"
#include "PvPageType.h"
#include "PvProductAlignmentStyle.h"
#include "PvSpiralConfig.h"
#include "PvSurroundingType.h"
#include "PvXMLRewriterStrategy.h"

#include <QDomNamedNodeMap>

#include <algorithm>

using PvDiagnostics::quoted;

namespace {
struct EnumKind {
    PvValueKind kind;
    const char* noun;
    QStringList (*names)();
};

template <typename Wrapper>
QStringList namesOf()
{
    const auto* table = Wrapper().enumToStringTable();
    QStringList names(table->enumToString.cbegin(), table->enumToString.cend());
    return names + table->stringToEnum.keys();
}

const EnumKind enumKinds[] = {
    { PvValueKind::PageTypes, "page type", &namesOf<PvPageType> },
    { PvValueKind::PageTypeList, "page type", &namesOf<PvPageType> },
    { PvValueKind::Alignments, "alignment", &namesOf<PvPageAlignment> },
    { PvValueKind::ArticleClass, "article class", &namesOf<PvArticleClass> },
    { PvValueKind::CoverType, "cover type", &namesOf<PvCoverType> },
    { PvValueKind::ImageFXs, "image effect", &namesOf<PvImageFXs> },
    { PvValueKind::ProductAlignment, "product alignment style", &namesOf<PvProductAlignmentStyle> },
    { PvValueKind::SurroundingType, "surrounding type", &namesOf<PvSurroundingType> },
    { PvValueKind::RewriterStrategy, "conversion strategy", &namesOf<PvXMLRewriterStrategy> },
    { PvValueKind::PageNamingStyle, "page naming style", &namesOf<PvPageNamingStyle> },
};

bool isBool(const QString& text)
{
    static const QStringList words = { QStringLiteral("true"), QStringLiteral("false"), QStringLiteral("1"),
                                       QStringLiteral("0"), QStringLiteral("yes"), QStringLiteral("no") };
    return words.contains(text.trimmed().toLower());
}

bool isInt(const QString& text)
{
    bool ok = false;
    text.trimmed().toInt(&ok, 10);
    return ok;
}

QString subject(const QDomElement& element, const QString& attribute)
{
    return attribute.isEmpty() ? QStringLiteral("the text of ") + quoted(element.tagName()) : QStringLiteral("attribute ") + quoted(attribute);
}
}

void PvProductLinter::lintElement(const QDomElement& element, const QString& path)
{
    const PvElementRule* rule = PvProductFileVocabulary::rule(path);
    if (!rule) {
        const QString parent = path.section(QLatin1Char('/'), 0, -2);
        report(element, PvDiagnostic::Error, QStringLiteral("unknown element %1 in %2 is ignored").arg(quoted(element.tagName()), quoted(element.parentNode().nodeName())),
               QString(), PvDiagnostics::closest(element.tagName(), PvProductFileVocabulary::childNames(parent)), element.tagName());
        return;
    }
    lintAttributes(element, *rule);
    if (rule->text != PvValueKind::Ignored)
        lintValue(element, QString(), rule->text, element.text());
    if (path == QLatin1String("product/preview3D")) {
        const QDomElement mesh = element.firstChildElement(QStringLiteral("mesh"));
        if (!mesh.attribute(QStringLiteral("file")).isEmpty() && element.firstChildElement(QStringLiteral("textureTarget")).isNull())
            report(mesh, PvDiagnostic::Error, QStringLiteral("a mesh needs at least one \"textureTarget\"; the product gets no 3D preview"));
    }
    if (path.endsWith(QLatin1String("/spirals")))
        lintSpiralPictures(element);

    const bool jigs = path.endsWith(QLatin1String("/jigs"));
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        if (jigs && !PvJigType().enumToStringTable()->decode(child.tagName())) {
            report(child, PvDiagnostic::Error, QStringLiteral("unknown jig type %1 is ignored").arg(quoted(child.tagName())), QString(),
                   PvDiagnostics::closest(child.tagName(), namesOf<PvJigType>()), child.tagName());
            continue;
        }
        lintElement(child, path + QLatin1Char('/') + (jigs ? PvProductFileVocabulary::jigPlaceholder() : child.tagName()));
    }
}

void PvProductLinter::lintAttributes(const QDomElement& element, const PvElementRule& rule)
{
    QStringList known;
    for (const PvAttributeRule& r : rule.attributes)
        known.append(QLatin1String(r.name));
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        const QDomAttr attribute = attributes.item(i).toAttr();
        const auto it = std::find_if(rule.attributes.cbegin(), rule.attributes.cend(),
                                     [&](const PvAttributeRule& r) { return attribute.name() == QLatin1String(r.name); });
        if (it == rule.attributes.cend())
            report(element, PvDiagnostic::Error, QStringLiteral("unknown attribute %1 on %2 is ignored").arg(quoted(attribute.name()), quoted(element.tagName())),
                   attribute.name(), PvDiagnostics::closest(attribute.name(), known), attribute.name());
        else
            lintValue(element, attribute.name(), it->kind, attribute.value());
    }
    for (const PvAttributeRule& attribute : rule.attributes) {
        if (attribute.required && !element.hasAttribute(QLatin1String(attribute.name)))
            report(element, PvDiagnostic::Error, QStringLiteral("%1 has no attribute %2").arg(quoted(element.tagName()), quoted(QLatin1String(attribute.name))));
    }
}

void PvProductLinter::lintValue(const QDomElement& element, const QString& attribute, PvValueKind kind, const QString& text)
{
    auto error = [&](const QString& message, const QString& suggestion = QString(), const QString& found = QString()) {
        report(element, PvDiagnostic::Error, subject(element, attribute) + QStringLiteral(": ") + message, attribute, suggestion, found);
    };
    switch (kind) {
    case PvValueKind::Ignored:
    case PvValueKind::Text:
    case PvValueKind::ProductRef:
        return;
    case PvValueKind::Bool:
        if (!isBool(text))
            error(quoted(text) + QStringLiteral(" is not true or false; the default is used"));
        return;
    case PvValueKind::Int:
        if (!isInt(text))
            error(quoted(text) + QStringLiteral(" is not a whole number; the default is used"));
        return;
    case PvValueKind::Number: {
        bool ok = false;
        text.trimmed().toDouble(&ok);
        if (!ok)
            error(quoted(text) + QStringLiteral(" is not a number; the default is used"));
        return;
    }
    case PvValueKind::IntList: {
        const QStringList parts = text.simplified().split(QLatin1Char(','), Qt::SkipEmptyParts);
        for (const QString& part : parts) {
            if (!isInt(part))
                error(quoted(part.trimmed()) + QStringLiteral(" is not a whole number and is skipped"));
        }
        return;
    }
    default:
        break;
    }
    for (const EnumKind& enumKind : enumKinds) {
        if (enumKind.kind != kind)
            continue;
        const QStringList known = enumKind.names();
        const QStringList pieces = text.split(QLatin1Char(','));
        for (const QString& piece : pieces) {
            const QString name = piece.trimmed();
            if (!name.isEmpty() && !known.contains(name, Qt::CaseInsensitive))
                error(QStringLiteral("unknown %1 %2 counts as nothing").arg(QLatin1String(enumKind.noun), quoted(name)), PvDiagnostics::closest(name, known), name);
        }
        if (kind == PvValueKind::PageTypeList && !text.trimmed().isEmpty()
            && std::any_of(pieces.cbegin(), pieces.cend(), [](const QString& piece) { return piece.trimmed().isEmpty(); }))
            error(QStringLiteral("an empty entry stands for an illegal page"));
    }
}

void PvProductLinter::lintSpiralPictures(const QDomElement& spirals)
{
    auto check = [&](const QDomElement& element, const QString& attribute, const QString& fallback) {
        const QString picture = element.hasAttribute(attribute) ? element.attribute(attribute) : fallback;
        // The loader itself reports a path that leaves the thumbnails folder.
        if (picture.isEmpty() || m_thumbnails.contains(picture) || !PvSpiralConfig::isPicturePathAllowed(picture))
            return;
        report(element, PvDiagnostic::Error,
               QStringLiteral("loop picture %1 is not in the thumbnails directory (names are case-sensitive); the spiral is not drawn").arg(quoted(picture)),
               element.hasAttribute(attribute) ? attribute : QString(), PvDiagnostics::closest(picture, m_thumbnails), picture);
    };
    if (spirals.attribute(QStringLiteral("count")).toInt() > 0 || spirals.hasAttribute(QStringLiteral("variant")))
        check(spirals, QStringLiteral("variant"), QStringLiteral("spiralbinding-one-loop-vertical.png"));
    const QDomElement images = spirals.firstChildElement(QStringLiteral("loopImages"));
    for (QDomElement image = images.firstChildElement(QStringLiteral("loopImage")); !image.isNull(); image = image.nextSiblingElement(QStringLiteral("loopImage")))
        check(image, QStringLiteral("imagePath"), QString());
}

