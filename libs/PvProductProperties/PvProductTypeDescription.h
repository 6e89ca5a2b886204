#pragma once

#include "PvArticleClass.h"
#include "PvBarcodeDefinitionList.h"
#include "PvBlockPool.h"
#include "PvConfiguredArticleVariantList.h"
#include "PvContentDropRedirectList.h"
#include "PvCoverType.h"
#include "PvDefaultTemplateMap.h"
#include "PvDistance.h"
#include "PvImageFXs.h"
#include "PvJigType.h"
#include "PvPageAlignment.h"
#include "PvPageTiltRedirectList.h"
#include "PvPageTypeList.h"
#include "PvPreview3DDescription.h"
#include "PvProductAlignmentStyle.h"
#include "PvProductClassification.h"
#include "PvProductEditorAbilities.h"
#include "PvProductType.h"
#include "PvProductionExtraPageGroupList.h"
#include "PvSurroundingDescriptionList.h"
#include "PvXMLRewriterStrategy.h"
#include "pvproductproperties_export.h"

#include <QDomElement>
#include <QList>
#include <QString>

class PvSurroundingKey;
class PvXMLChildren;

//! Production numbers of pages, by page position.
using PvProductionNumberingList = QList<int>;

/*!
 * Everything the application knows about one orderable product type, read from the
 * "product" element of a product file. Built once and never changed afterwards.
 */
class PVPRODUCTPROPERTIES_EXPORT PvProductTypeDescription : public PvBlockPoolAllocated
{
public:
    //! Every field at its default: the description of an unknown product type.
    PvProductTypeDescription();
    //! Parses a "product" element; missing or wrong items keep their defaults.
    explicit PvProductTypeDescription(const QDomElement& product);
    //! Descriptions are owned by their registry and never copied.
    virtual ~PvProductTypeDescription();

    //! The product type this file describes ("name" of the product element).
    [[nodiscard]] PvProductType productType() const { return m_productType; }
    //! The article class, one bit for a valid product.
    [[nodiscard]] PvArticleClass articleClass() const { return PvArticleClass(m_articleClass); }
    //! The cover type ("binding"); 0 when the file gives none.
    [[nodiscard]] PvCoverType coverType() const { return PvCoverType(m_coverType); }
    //! A set of cards of different designs ("isVario").
    [[nodiscard]] bool isVario() const { return m_isVario; }
    //! Printed on both sides ("isTwoSided").
    [[nodiscard]] bool isTwoSided() const { return m_isTwoSided; }
    //! For a retired product: the product that replaces it; empty otherwise.
    [[nodiscard]] PvProductType replacedByProduct() const { return m_replacedByProduct; }
    //! For a retired product: how an old project is rewritten for its replacement.
    [[nodiscard]] PvXMLRewriterStrategy conversionStrategy() const { return PvXMLRewriterStrategy(m_conversionStrategy); }

    /*!
     * A product needs exactly one article class and a cover type; only the "prints" class
     * goes without a cover type.
     */
    [[nodiscard]] bool isValid() const;
    //! Single sheets, folded cards and wall products: the cover type is simplex.
    [[nodiscard]] bool isSimplex() const;
    //! A card of the vario kind (a card class with "isVario").
    [[nodiscard]] bool isVarioCard() const;
    //! A card that is not a vario card.
    [[nodiscard]] bool isEasyCard() const;

    //! A spine or a jacket page is in the page list.
    [[nodiscard]] bool hasSpine() const { return m_hasSpine; }
    //! Whether production prints the logo on the spine ("hasLogoOnSpine").
    [[nodiscard]] bool mustPaintMiralLogoOnSpine() const { return m_mustPaintMiralLogoOnSpine; }
    //! A spine and no printed inside covers, which leave no room for text on the spine.
    [[nodiscard]] bool hasTextOnSpine() const { return m_hasTextOnSpine; }
    //! The image effects the editor offers ("imageFXs").
    [[nodiscard]] PvImageFXs imageFX() const { return PvImageFXs(m_imageFX); }
    //! -1 when the product file gives none.
    [[nodiscard]] int foldSafetyMargin() const { return m_foldSafetyMargin; }
    //! Whether pictures may have a border.
    [[nodiscard]] bool canHaveBorder() const { return m_canHaveBorder; }
    //! Whether pictures may cast a shadow.
    [[nodiscard]] bool canHaveShadow() const { return m_canHaveShadow; }
    //! How the editor aligns the product's pages ("productAlignment").
    [[nodiscard]] PvProductAlignmentStyle productAlignment() const { return PvProductAlignmentStyle(m_productAlignment); }
    //! Whether pages are laid side by side ("horizontalPages", default true).
    [[nodiscard]] bool horizontalPages() const { return m_horizontalPages; }
    //! The configured article variants of the product.
    [[nodiscard]] PvConfiguredArticleVariantList variants() const { return m_variants; }
    //! The category of the price list the product belongs to.
    [[nodiscard]] QString priceListCategory() const { return m_priceListCategory; }
    //! Degrees; 270 when the product file has no "tilt".
    [[nodiscard]] int tiltAngle() const { return m_tiltAngle; }
    //! Where production prints barcodes.
    [[nodiscard]] PvBarcodeDefinitionList barcodeDefinitions() const { return m_barcodeDefinitions; }
    //! How the 3D preview shows the product.
    [[nodiscard]] PvPreview3DDescription preview3DDescription() const { return m_preview3DDescription; }
    //! The classification group and size for product choosers.
    [[nodiscard]] PvProductClassification classification() const { return m_classification; }
    //! What the design editor may do with the product.
    [[nodiscard]] PvProductEditorAbilities editorAbilities() const { return m_editorAbilities; }

    //! Whether the editor offers its assistant; from the editor abilities.
    [[nodiscard]] bool hasAssistant() const;
    //! Whether a project may be converted to another product; from the editor abilities.
    [[nodiscard]] bool isConvertable() const;
    //! How the editor names the pages; from the editor abilities.
    [[nodiscard]] PvPageNamingStyle pageNamingStyle() const;
    //! Whether the editor shows the button to change the base design.
    [[nodiscard]] bool showChangeDesignButton() const;
    //! Whether backgrounds may be rotated; from the editor abilities.
    [[nodiscard]] bool canRotateBackgrounds() const;
    //! The page the editor opens first; from the editor abilities.
    [[nodiscard]] int editorStartPage() const;
    //! Whether one background fills each whole page; from the editor abilities.
    [[nodiscard]] bool putFullBackgroundOnEachPage() const;
    //! Whether content of \a jigType must match the article exactly.
    [[nodiscard]] bool requiresExactArticle(const PvJigType& jigType) const;
    //! Whether the editor offers \a jigType for this product.
    [[nodiscard]] bool supportsJigType(const PvJigType& jigType) const;
    //! The calendar date range of the editor abilities (the name is spelled so on purpose).
    [[nodiscard]] PvDateRangeConstraint dateRangeContraint() const;
    //! Whether the user may turn page \a page.
    [[nodiscard]] bool userPageTiltAllowed(const int& page) const;
    /*!
     * Whether content may go on page \a page: never when the product disables content, else
     * on the pages listed in "pageswithcontent", or on every page when none are listed.
     */
    [[nodiscard]] bool contentAllowedOnPage(int page) const;
    //! The categories allowed for \a jigType on \a pageType; empty when not limited.
    [[nodiscard]] PvThematicCategorySet allowedJigCategories(const PvPageType& pageType, const PvJigType& jigType) const;
    //! Whether the product limits the categories of \a jigType on \a pageType at all.
    [[nodiscard]] bool limitJigCategories(const PvPageType& pageType, const PvJigType& jigType) const;

    //! The page list as written, with its placeholders for runs of pages.
    [[nodiscard]] PvPageTypeList pageTypes() const { return m_pageTypes; }
    //! The length of the page list as written.
    [[nodiscard]] int countAbstractPages() const { return int(m_pageTypes.size()); }
    /*!
     * The concrete page types of a project of \a pageCount pages: each run placeholder
     * stands for \a pageCount pages, less one for each cover page before it. Never empty.
     * The list stops at 10000 pages, with a warning in "pv.productproperties".
     */
    [[nodiscard]] PvPageTypeList pageTypes(unsigned int pageCount) const;
    //! The stored production numbers of the first pages.
    [[nodiscard]] PvProductionNumberingList productionNumbering() const { return m_productionNumbering; }
    /*!
     * Exactly \a pageCount production numbers (none for a count below 1): the stored ones,
     * cut or continued by counting on from the last. Costs memory in proportion to \a pageCount.
     */
    [[nodiscard]] PvProductionNumberingList productionNumberingList(int pageCount) const;
    //! Where the page at \a index of the concrete list \a pages lies in its spread.
    [[nodiscard]] PvPageAlignment pageAlignment(const PvPageTypeList& pages, int index) const;
    //! The pages that may hold content as listed in the product file; empty means every page.
    [[nodiscard]] QList<int> pagesWithContent() const { return m_pagesWithContent; }

    //! Binding shades, frames and passe-partouts around the pages.
    [[nodiscard]] PvSurroundingDescriptionList surroundings() const { return m_surroundings; }
    //! The first surrounding suitable for \a key (for any variant when none is for its own); "no surrounding" otherwise.
    [[nodiscard]] PvSurroundingDescription findSurrounding(const PvSurroundingKey& key) const;
    //! Whether some surrounding draws a binding shade.
    [[nodiscard]] bool hasSurroundingWithBindingShade() const;
    //! Where tilted pages take their content from.
    [[nodiscard]] PvPageTiltRedirectList tiltRedirects() const { return m_tiltRedirects; }
    //! The tilt redirects whose source is page \a page.
    [[nodiscard]] PvPageTiltRedirectList tiltRedirectForSourcePage(int page) const;
    //! The tilt redirects whose target is page \a page.
    [[nodiscard]] PvPageTiltRedirectList tiltRedirectForTargetPage(int page) const;
    //! Where content dropped on a page goes instead.
    [[nodiscard]] PvContentDropRedirectList contentDropRedirects() const { return m_contentDropRedirects; }
    //! The page that content dropped on \a page lands on.
    [[nodiscard]] int contentDropRedirect(int page) const;
    //! The default templates of the product.
    [[nodiscard]] PvDefaultTemplateMap defaultTemplates() const { return m_defaultTemplates; }
    //! The default template of \a key; empty when none fits.
    [[nodiscard]] QString findDefaultTemplate(const PvDefaultTemplateKey& key) const;
    //! Horizontal distance of page numbers from the page edge.
    [[nodiscard]] PvDistance pageNumberHorizontalIndent() const { return m_pageNumberHorizontalIndent; }
    //! Vertical distance of page numbers from the page edge.
    [[nodiscard]] PvDistance pageNumberVerticalIndent() const { return m_pageNumberVerticalIndent; }
    //! Font size of page numbers.
    [[nodiscard]] int pageNumberFontSize() const { return m_pageNumberFontSize; }
    //! The pages production adds to an order, in groups.
    [[nodiscard]] PvProductionExtraPageGroupList extraProductionContents() const { return m_extraProductionContents; }
    //! The number of pages all groups of extra production pages add.
    [[nodiscard]] int extraProductionPageCount() const;

    //! The numbers of a comma-separated list in the text of \a element; other parts are dropped.
    [[nodiscard]] static QList<int> decodeIntList(const QDomElement& element);
    //! The "foldsafetymargin" of \a element, -1 when it has none.
    [[nodiscard]] static int decodeFoldSafetyMargin(const QDomElement& element);

private:
    void initIdentity(const QDomElement& product);
    void initArticleClass(const QDomElement& product);
    void initImageFX(const QDomElement& product);
    void initLayout(const PvXMLChildren& elements);
    void initRedirectsAndDefaults(const PvXMLChildren& product);
    void initPages(const PvXMLChildren& product);
    void initPageNumbering(const PvXMLChildren& product);
    void initReplacement(const QDomElement& product);
    void initPricListCategories(const PvXMLChildren& product);
    void initbarcodeDefinitions(const PvXMLChildren& product);

    PvProductClassification m_classification;
    PvProductType m_productType;
    PvPageTypeList m_pageTypes;
    PvProductionNumberingList m_productionNumbering;
    PvConfiguredArticleVariantList m_variants;
    QList<int> m_pagesWithContent;
    PvSurroundingDescriptionList m_surroundings;
    PvPageTiltRedirectList m_tiltRedirects;
    PvContentDropRedirectList m_contentDropRedirects;
    PvDefaultTemplateMap m_defaultTemplates;
    PvDistance m_pageNumberHorizontalIndent;
    PvDistance m_pageNumberVerticalIndent;
    PvProductionExtraPageGroupList m_extraProductionContents;
    PvProductType m_replacedByProduct;
    PvProductEditorAbilities m_editorAbilities;
    QString m_priceListCategory;
    PvBarcodeDefinitionList m_barcodeDefinitions;
    PvPreview3DDescription m_preview3DDescription;
    // Enumerations are kept as their values and wrapped when asked for: each wrapper would
    // carry a pointer to its virtual table. The small members come last, without gaps.
    PvArticleClassEnum m_articleClass = PvArticleClass().value();
    PvCoverTypeEnum m_coverType = PvCoverType().value();
    PvImageFXsEnum m_imageFX = PvImageFXs().value();
    PvProductAlignmentStyleEnum m_productAlignment = PvProductAlignmentStyle().value();
    PvXMLRewriterStrategyEnum m_conversionStrategy = PvXMLRewriterStrategy().value();
    int m_foldSafetyMargin = 0;
    int m_pageNumberFontSize = 0;
    int m_tiltAngle = 0;
    bool m_isVario = false;
    bool m_isTwoSided = false;
    bool m_hasSpine = false;
    bool m_mustPaintMiralLogoOnSpine = false;
    bool m_hasTextOnSpine = false;
    bool m_canHaveBorder = false;
    bool m_canHaveShadow = false;
    bool m_horizontalPages = false;
};
