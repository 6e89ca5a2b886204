#include "PvProductFileVocabulary.h"

#include <QHash>

namespace {
using K = PvValueKind;

const std::vector<PvElementRule>& rules()
{
    static const std::vector<PvElementRule> table = {
        { "product",
          { { "name", K::Text }, { "isVario", K::Bool }, { "isTwoSided", K::Bool }, { "class", K::ArticleClass },
            { "imageFXs", K::ImageFXs }, { "binding", K::CoverType }, { "horizontalPages", K::Bool },
            { "productAlignment", K::ProductAlignment }, { "hasLogoOnSpine", K::Bool }, { "foldsafetymargin", K::Int },
            { "replacedBy", K::ProductRef }, { "conversionStrategy", K::RewriterStrategy } } },
        { "product/classification", { { "cm", K::Text }, { "inch", K::Text }, { "group", K::Text } } },
        { "product/surroundings", {} },
        { "product/surroundings/surrounding",
          { { "type", K::SurroundingType }, { "pageType", K::PageTypes }, { "alignment", K::Alignments }, { "pageNr", K::Int },
            { "paintOnTop", K::Bool }, { "canBeHiddenByUser", K::Bool }, { "hideGrafikInPreview", K::Bool },
            { "image", K::Text }, { "imageSpotColor", K::Text }, { "x", K::Number }, { "y", K::Number },
            { "width", K::Number }, { "height", K::Number }, { "hasbindingshade", K::Bool }, { "hasspinefold", K::Bool },
            { "spinefoldwidth", K::Int }, { "variant", K::Text }, { "tileWidth", K::Int }, { "tileHeight", K::Int },
            { "compositionMode", K::Text } } },
        { "product/surroundings/surrounding/hole", { { "diameter", K::Int }, { "distanceY", K::Int } } },
        { "product/surroundings/surrounding/spirals",
          { { "count", K::Int }, { "hookWidth", K::Int }, { "hookHeight", K::Int }, { "loopHeight", K::Int },
            { "loopWidth", K::Int }, { "loopDistance", K::Int }, { "variant", K::Text } } },
        { "product/surroundings/surrounding/spirals/loopImages", {} },
        { "product/surroundings/surrounding/spirals/loopImages/loopImage", { { "variant", K::Text }, { "imagePath", K::Text } } },
        { "product/rotationredirects", {} },
        { "product/rotationredirects/rotationredirect", { { "from", K::Int, true }, { "to", K::Int, true }, { "angleinvert", K::Int } } },
        { "product/contentredirects", {} },
        // The library itself says what is wrong with a redirect or with target pages.
        { "product/contentredirects/contentredirect", { { "from", K::Text }, { "to", K::Int } } },
        { "product/defaults", {} },
        { "product/defaults/default",
          { { "pageType", K::PageTypes }, { "alignment", K::Alignments }, { "pageNr", K::Int }, { "scenePageCount", K::Int },
            { "templates", K::Text }, { "layout", K::Text }, { "background", K::Text }, { "design", K::Text } } },
        { "product/tilt", { { "angle", K::Number } } },
        { "product/variants", {} },
        { "product/variants/variant", { { "id", K::Text }, { "name", K::Text }, { "default", K::Bool } } },
        { "product/productionnumbering", {}, K::IntList },
        { "product/pageswithcontent", {}, K::IntList },
        { "product/pages", {}, K::PageTypeList },
        { "product/pageNumberConfig", {} },
        { "product/pageNumberConfig/margin", { { "verticalMargin", K::Number }, { "horizontalMargin", K::Number } } },
        { "product/pageNumberConfig/font", { { "fontSize", K::Int } } },
        { "product/extra_production_pages", {} },
        { "product/extra_production_pages/item", {} },
        { "product/extra_production_pages/item/target_pages", {}, K::Text },
        { "product/extra_production_pages/item/pdf", { { "filename", K::Text }, { "type", K::Text }, { "layer", K::Int } } },
        { "product/editorAbilities", { { "convertable", K::Bool } } },
        { "product/editorAbilities/assistant", { { "enabled", K::Bool } } },
        { "product/editorAbilities/pageNamingStyle", {}, K::PageNamingStyle },
        { "product/editorAbilities/pageTilt", { { "disabled", K::Bool }, { "pages", K::IntList } } },
        { "product/editorAbilities/startPage", {}, K::Int },
        { "product/editorAbilities/dateRangeConstraint",
          { { "isEnforced", K::Bool }, { "minimumFromCurrentYear", K::Int }, { "maximumFromCurrentYear", K::Int } } },
        { "product/editorAbilities/jigs", { { "showChangeBaseDesignButton", K::Bool } } },
        { "product/editorAbilities/jigs/*jig*",
          { { "enabled", K::Bool }, { "rotatable", K::Bool }, { "fullOnEachPage", K::Bool }, { "exactArticle", K::Bool } } },
        { "product/editorAbilities/jigs/*jig*/categories", { { "pageType", K::PageTypes, true } }, K::Text },
        { "product/pricelist", {} },
        { "product/pricelist/category", {}, K::Text },
        { "product/barcodes", {} },
        { "product/barcodes/barcode",
          { { "type", K::Text }, { "page", K::Int }, { "x", K::Number }, { "y", K::Number }, { "width", K::Number }, { "height", K::Number } } },
        { "product/preview3D", {} },
        { "product/preview3D/mesh", { { "file", K::Text }, { "flipY", K::Bool }, { "flipX", K::Bool }, { "pagesPer3DModel", K::Int } } },
        { "product/preview3D/cupRing", { { "x", K::Number }, { "y", K::Number }, { "width", K::Number }, { "height", K::Number } } },
        { "product/preview3D/textureTarget",
          { { "name", K::Text }, { "x", K::Number }, { "y", K::Number }, { "width", K::Number }, { "height", K::Number }, { "page", K::Int } } },
        { "product/preview3D/camera", {} },
        { "product/preview3D/camera/position", { { "x", K::Number }, { "y", K::Number }, { "z", K::Number } } },
        { "product/preview3D/camera/lookAt", { { "x", K::Number }, { "y", K::Number }, { "z", K::Number } } },
        { "product/preview3D/cameraBig", {} },
        { "product/preview3D/cameraBig/position", { { "x", K::Number }, { "y", K::Number }, { "z", K::Number } } },
        { "product/preview3D/cameraBig/lookAt", { { "x", K::Number }, { "y", K::Number }, { "z", K::Number } } },
        { "product/preview3D/windowSize", { { "width", K::Int }, { "height", K::Int } } },
    };
    return table;
}
}

const PvElementRule* PvProductFileVocabulary::rule(const QString& path)
{
    static const QHash<QString, const PvElementRule*> byPath = [] {
        QHash<QString, const PvElementRule*> hash;
        for (const PvElementRule& rule : rules())
            hash.insert(QString::fromLatin1(rule.path), &rule);
        return hash;
    }();
    return byPath.value(path);
}

QStringList PvProductFileVocabulary::childNames(const QString& path)
{
    QStringList names;
    const QString prefix = path + QLatin1Char('/');
    for (const PvElementRule& rule : rules()) {
        const QString candidate = QString::fromLatin1(rule.path);
        if (candidate.startsWith(prefix) && !candidate.mid(prefix.size()).contains(QLatin1Char('/')))
            names.append(candidate.mid(prefix.size()));
    }
    return names;
}
