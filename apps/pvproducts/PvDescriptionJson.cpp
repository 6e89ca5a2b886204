#include "PvDescriptionJson.h"

#include "PvDefaultTemplateKey.h"
#include "PvJigTypeList.h"
#include "PvJsonOutput.h"
#include "PvProductTypeDescription.h"
#include "PvThematicCategorySet.h"

#include <QJsonArray>

#include <algorithm>
#include <iterator>
#include <tuple>

using PvJsonOutput::intArray;
using PvJsonOutput::nameOf;

namespace {
QString text(const QString& value)
{
    return value;
}

QJsonArray pageTypeNames(const PvPageTypeList& pages)
{
    QJsonArray names;
    for (const PvPageType& page : pages)
        names.append(nameOf(page));
    return names;
}

// The single page types a description's lists and abilities can be keyed by.
QList<PvPageType> singlePageTypes()
{
    QList<PvPageType> types;
    for (quint32 bit = 1; bit <= 0x400000; bit <<= 1)
        types.append(PvPageType(PvPageTypeEnum(bit)));
    return types;
}

QJsonArray contentRedirects(const PvProductTypeDescription& d)
{
    QJsonArray redirects;
    for (const PvContentDropRedirectList::Range& range : d.contentDropRedirects().ranges())
        redirects.append(QJsonObject { { QStringLiteral("from"), range.first == range.last ? QString::number(range.first)
                                                                                              : QStringLiteral("%1-%2").arg(range.first).arg(range.last) },
                                       { QStringLiteral("to"), range.target } });
    return redirects;
}

// One object per page context, page number and scene page count, holding its three names.
QJsonArray defaultTemplates(const PvProductTypeDescription& d)
{
    static const char* const typeNames[] = { "layout", "background", "design" };
    QJsonArray templates;
    QJsonObject entry;
    PvDefaultTemplateKey group;
    const auto flush = [&templates, &entry, &group]() {
        if (entry.isEmpty())
            return;
        entry.insert(QStringLiteral("pageType"), nameOf(group.pageType()));
        entry.insert(QStringLiteral("alignment"), group.pageAlignment().encodeCSV());
        entry.insert(QStringLiteral("pageNr"), group.pageNumber());
        entry.insert(QStringLiteral("scenePageCount"), group.scenePageCount());
        templates.append(entry);
        entry = QJsonObject();
    };
    // Entries come sorted with the template type between context and numbers: group by the rest.
    const auto sameGroup = [](const PvDefaultTemplateKey& a, const PvDefaultTemplateKey& b) {
        return a.pageContext() == b.pageContext() && a.pageNumber() == b.pageNumber() && a.scenePageCount() == b.scenePageCount();
    };
    QList<PvDefaultTemplateMap::Entry> entries = d.defaultTemplates().entries();
    std::stable_sort(entries.begin(), entries.end(), [](const PvDefaultTemplateMap::Entry& a, const PvDefaultTemplateMap::Entry& b) {
        return std::make_tuple(a.key.pageType().toUnderlying(), a.key.pageAlignment().toUnderlying(), a.key.scenePageCount(), a.key.pageNumber())
            < std::make_tuple(b.key.pageType().toUnderlying(), b.key.pageAlignment().toUnderlying(), b.key.scenePageCount(), b.key.pageNumber());
    });
    for (const PvDefaultTemplateMap::Entry& e : entries) {
        if (!sameGroup(e.key, group))
            flush();
        group = e.key;
        const int type = int(e.key.defaultTemplateType());
        if (!e.name.isEmpty() && type >= 0 && type < int(std::size(typeNames)))
            entry.insert(QLatin1String(typeNames[type]), e.name);
    }
    flush();
    return templates;
}

QJsonObject loopPictures(const PvSpiralConfig& spiral)
{
    QJsonObject pictures;
    const QHash<QString, QString> images = spiral.loopImages();
    for (auto it = images.cbegin(); it != images.cend(); ++it)
        pictures.insert(it.key(), it.value());
    return pictures;
}

QJsonArray jigs(const PvProductTypeDescription& d)
{
    const PvProductEditorAbilities editor = d.editorAbilities();
    QJsonArray jigs;
    for (const PvJigType& jig : PvJigTypeList::allElementTypes()) {
        QJsonObject categories;
        for (const PvPageType& pageType : singlePageTypes()) {
            const PvThematicCategorySet set = editor.allowedCategories(jig, pageType);
            QStringList names;
            for (const PvThematicCategory& category : set)
                names.append(category.internalName());
            // A set iterates in hash order, which differs from run to run.
            names.sort();
            if (!names.isEmpty())
                categories.insert(nameOf(pageType), QJsonArray::fromStringList(names));
        }
        jigs.append(QJsonObject { { QStringLiteral("type"), nameOf(jig) },
                                  { QStringLiteral("enabled"), editor.isJigEnabled(jig) },
                                  { QStringLiteral("exactArticle"), editor.requiresExactArticle(jig) },
                                  { QStringLiteral("categories"), categories } });
    }
    return jigs;
}

QJsonArray surroundings(const PvProductTypeDescription& d)
{
    QJsonArray list;
    for (const PvSurroundingDescription& s : d.surroundings()) {
        const QRect area = s.editableArea();
        QJsonObject object { { QStringLiteral("type"), nameOf(s.surroundingType()) },
                             { QStringLiteral("pageTypes"), s.pageTypes().encodeCSV() },
                             { QStringLiteral("alignments"), s.alignments().encodeCSV() },
                             { QStringLiteral("pageNr"), s.pageNr() },
                             { QStringLiteral("image"), s.imageResource() },
                             { QStringLiteral("imageSpotColor"), s.imageResourceSpotColor() },
                             { QStringLiteral("paintOnTop"), s.paintOnTop() },
                             { QStringLiteral("canBeHiddenByUser"), s.canBeHiddenByUser() },
                             { QStringLiteral("hideGrafikInPreview"), s.hideGrafikInPreview() },
                             { QStringLiteral("bindingShade"), s.hasBindingShade() },
                             { QStringLiteral("spineFold"), s.hasSpineFold() },
                             { QStringLiteral("spineFoldWidth"), s.spineFoldWidth() },
                             { QStringLiteral("editableArea"), QStringLiteral("%1,%2 %3x%4").arg(area.x()).arg(area.y()).arg(area.width()).arg(area.height()) },
                             { QStringLiteral("tileSize"), QStringLiteral("%1x%2").arg(s.tileSize().width()).arg(s.tileSize().height()) } };
        const PvSpiralConfig spiral = s.spiralConfig();
        if (spiral.hasSpiral())
            object.insert(QStringLiteral("spiral"), QJsonObject { { QStringLiteral("count"), spiral.spiralCount() },
                                                                 { QStringLiteral("hookWidth"), spiral.hookWidth() },
                                                                 { QStringLiteral("hookHeight"), spiral.hookHeight() },
                                                                 { QStringLiteral("loopPicture"), spiral.variant() },
                                                                 { QStringLiteral("loopPictures"), loopPictures(spiral) } });
        if (s.calendarHoleConfig().hasHole())
            object.insert(QStringLiteral("hole"), QJsonObject { { QStringLiteral("diameter"), s.calendarHoleConfig().diameter() },
                                                               { QStringLiteral("distanceY"), s.calendarHoleConfig().distanceY() } });
        list.append(object);
    }
    return list;
}

QJsonArray extraPages(const PvProductTypeDescription& d)
{
    QJsonArray groups;
    for (const PvProductionExtraPageGroup& group : d.extraProductionContents())
        groups.append(QJsonObject { { QStringLiteral("targetPages"), intArray(group.targetPages()) },
                                    { QStringLiteral("pdf"), group.content().filename() },
                                    { QStringLiteral("type"), group.content().templateType() },
                                    { QStringLiteral("layer"), group.content().targetLayer() } });
    return groups;
}
}

QJsonObject PvDescriptionJson::describe(const PvProductTypeDescription& d)
{
    QJsonArray tiltRedirects;
    for (const PvPageTiltRedirect& redirect : d.tiltRedirects())
        tiltRedirects.append(QJsonObject { { QStringLiteral("from"), redirect.sourcePageNr() }, { QStringLiteral("to"), redirect.targetPageNr() },
                                           { QStringLiteral("angleinvert"), redirect.angleInvert() } });
    QJsonArray variants;
    for (const auto& variant : d.variants().variants())
        variants.append(QJsonObject { { QStringLiteral("id"), variant.id }, { QStringLiteral("name"), variant.name }, { QStringLiteral("default"), variant.isDefault } });
    const PvProductClassification classification = d.classification();
    const PvProductEditorAbilities editor = d.editorAbilities();
    const PvDateRangeConstraint dates = editor.dateRangeConstraint();
    const PvUserPageTiltConfig pageTilt = editor.userPageTiltConfig();

    return QJsonObject {
        { QStringLiteral("name"), d.productType().name() },
        { QStringLiteral("valid"), d.isValid() },
        { QStringLiteral("class"), d.articleClass().encodeCSV() },
        { QStringLiteral("cover"), d.coverType().encodeCSV() },
        { QStringLiteral("vario"), d.isVario() },
        { QStringLiteral("twoSided"), d.isTwoSided() },
        { QStringLiteral("simplex"), d.isSimplex() },
        { QStringLiteral("abstractPages"), d.countAbstractPages() },
        { QStringLiteral("abstractPageList"), pageTypeNames(d.pageTypes()) },
        { QStringLiteral("spine"), d.hasSpine() },
        { QStringLiteral("textOnSpine"), d.hasTextOnSpine() },
        { QStringLiteral("logoOnSpine"), d.mustPaintMiralLogoOnSpine() },
        { QStringLiteral("horizontalPages"), d.horizontalPages() },
        { QStringLiteral("productAlignment"), text(nameOf(d.productAlignment())) },
        { QStringLiteral("imageEffects"), nameOf(d.imageFX()) },
        { QStringLiteral("border"), d.canHaveBorder() },
        { QStringLiteral("shadow"), d.canHaveShadow() },
        { QStringLiteral("productionNumbering"), intArray(d.productionNumbering()) },
        { QStringLiteral("pagesWithContent"), intArray(d.pagesWithContent()) },
        { QStringLiteral("foldSafetyMargin"), d.foldSafetyMargin() },
        { QStringLiteral("tiltAngle"), d.tiltAngle() },
        { QStringLiteral("tiltRedirects"), tiltRedirects },
        { QStringLiteral("contentRedirects"), contentRedirects(d) },
        { QStringLiteral("defaultTemplates"), defaultTemplates(d) },
        { QStringLiteral("pageNumbers"), QJsonObject { { QStringLiteral("horizontalMargin"), d.pageNumberHorizontalIndent().value() },
                                                       { QStringLiteral("verticalMargin"), d.pageNumberVerticalIndent().value() },
                                                       { QStringLiteral("fontSize"), d.pageNumberFontSize() } } },
        { QStringLiteral("editor"), QJsonObject { { QStringLiteral("assistant"), editor.hasAssistant() },
                                                  { QStringLiteral("convertable"), editor.isConvertable() },
                                                  { QStringLiteral("pageNaming"), nameOf(editor.pageNamingStyle()) },
                                                  { QStringLiteral("startPage"), editor.editorStartPage() },
                                                  { QStringLiteral("changeDesignButton"), editor.showChangeBaseDesignButton() },
                                                  { QStringLiteral("rotateBackgrounds"), editor.canRotateBackgrounds() },
                                                  { QStringLiteral("fullBackgroundOnEachPage"), editor.fullBackgroundOnEachPage() },
                                                  { QStringLiteral("pageTiltDisabled"), pageTilt.isDisabled() },
                                                  { QStringLiteral("pageTiltPages"), intArray(pageTilt.pages()) },
                                                  { QStringLiteral("dateRange"), QJsonObject { { QStringLiteral("enforced"), dates.enforce() },
                                                                                               { QStringLiteral("minimumFromCurrentYear"), dates.minimumFromCurrentYear() },
                                                                                               { QStringLiteral("maximumFromCurrentYear"), dates.maximumFromCurrentYear() } } },
                                                  { QStringLiteral("jigs"), jigs(d) } } },
        { QStringLiteral("surroundings"), surroundings(d) },
        { QStringLiteral("variants"), variants },
        { QStringLiteral("extraProductionPages"), extraPages(d) },
        { QStringLiteral("barcodes"), int(d.barcodeDefinitions().size()) },
        { QStringLiteral("priceListCategory"), d.priceListCategory() },
        { QStringLiteral("classification"), QJsonObject { { QStringLiteral("group"), classification.group().value() },
                                                          { QStringLiteral("cm"), classification.sizeName(PvDistanceUnit(PvCentimetre)) },
                                                          { QStringLiteral("inch"), classification.sizeName(PvDistanceUnit(PvInch)) } } },
        { QStringLiteral("preview3D"), d.preview3DDescription().url(false).toString() },
        { QStringLiteral("replacedBy"), d.replacedByProduct().name() },
        { QStringLiteral("conversionStrategy"), nameOf(d.conversionStrategy()) },
    };
}

const QStringList& PvDescriptionJson::order()
{
    static const QStringList keys = {
        QStringLiteral("name"), QStringLiteral("file"), QStringLiteral("replaces"), QStringLiteral("legacy"), QStringLiteral("valid"),
        QStringLiteral("class"), QStringLiteral("cover"), QStringLiteral("vario"), QStringLiteral("twoSided"), QStringLiteral("simplex"),
        QStringLiteral("abstractPages"), QStringLiteral("abstractPageList"), QStringLiteral("spine"), QStringLiteral("textOnSpine"), QStringLiteral("logoOnSpine"),
        QStringLiteral("horizontalPages"), QStringLiteral("productAlignment"), QStringLiteral("imageEffects"), QStringLiteral("border"),
        QStringLiteral("shadow"), QStringLiteral("productionNumbering"), QStringLiteral("pagesWithContent"), QStringLiteral("foldSafetyMargin"),
        QStringLiteral("tiltAngle"), QStringLiteral("tiltRedirects"), QStringLiteral("contentRedirects"), QStringLiteral("defaultTemplates"),
        QStringLiteral("pageNumbers"), QStringLiteral("editor"), QStringLiteral("surroundings"), QStringLiteral("variants"),
        QStringLiteral("extraProductionPages"), QStringLiteral("barcodes"), QStringLiteral("priceListCategory"), QStringLiteral("classification"),
        QStringLiteral("preview3D"), QStringLiteral("replacedBy"), QStringLiteral("conversionStrategy"),
    };
    return keys;
}
