#include "PvSurroundingDescription.h"

#include "PvBlockPool.h"
#include "PvEnumAttribute.h"
#include "PvSurroundingKey.h"
#include "PvValuePool.h"
#include "PvXMLParser.h"
#include "PvXMLChildren.h"

#include <QDomAttr>
#include <QDomDocument>
#include <QHashFunctions>
#include <QSharedData>
#include <QStringList>

#include <climits>
#include <memory>
#include <tuple>

class PvSurroundingDescriptionImpl : public QSharedData, public PvBlockPoolAllocated
{
public:
    void readAttributes(const QDomElement& element);
    void readChildren(const QDomElement& element);

    auto fields() const
    {
        return std::tie(productType, surroundingType, pageType, alignment, pageNr, paintOnTop, canBeHiddenByUser,
            hideGrafikInPreview, image, imageSpotColor, editableArea, hasBindingShade, hasSpineFold, spineFoldWidth,
            calendarHoleConfig, variant, tileWidth, tileHeight);
    }

    PvProductType productType;
    PvSurroundingType surroundingType;
    PvPageType pageType;
    PvPageAlignment alignment;
    int pageNr = -1;
    bool paintOnTop = true;
    bool canBeHiddenByUser = false;
    bool hideGrafikInPreview = false;
    QString image;
    QString imageSpotColor;
    QRect editableArea;
    bool hasBindingShade = false;
    bool hasSpineFold = false;
    int spineFoldWidth = 0;
    PvCalendarHoleConfig calendarHoleConfig;
    // Most surroundings have no spiral; they all answer the one read from no element rather
    // than carry a copy of it.
    std::shared_ptr<const PvSpiralConfig> spiralConfig;
    [[nodiscard]] const PvSpiralConfig& spiral() const
    {
        static const PvSpiralConfig none { QDomElement() };
        return spiralConfig ? *spiralConfig : none;
    }
    PvArticleVariants variant;
    int tileWidth = -1;
    int tileHeight = -1;
};

void PvSurroundingDescriptionImpl::readAttributes(const QDomElement& element)
{
    // Note the all-lower-case names among the camel-case ones: files spell them so. A
    // surrounding has a few of these: the likely ones are asked for first, and once all it
    // has are found the others are known to be missing.
    static const PvSurroundingType book(QStringLiteral("book"));
    static const PvPageType all(QStringLiteral("all"));
    PvXMLAttributes attributes(element);
    surroundingType = pvEnumAttribute(attributes, QStringLiteral("type"), book);
    image = PvValuePool::shared(PvXMLParser::attribute(attributes, QStringLiteral("image")));
    pageType = pvEnumAttribute(attributes, QStringLiteral("pageType"), all);
    alignment = pvEnumAttribute(attributes, QStringLiteral("alignment"), pvEveryAlignment());
    paintOnTop = PvXMLParser::boolAttribute(attributes, QStringLiteral("paintOnTop"), true);
    variant = PvArticleVariants(PvXMLParser::attribute(attributes, QStringLiteral("variant")));
    pageNr = PvXMLParser::intAttribute(attributes, QStringLiteral("pageNr"), -1);
    editableArea = PvXMLParser::readRect(attributes);
    hasBindingShade = PvXMLParser::boolAttribute(attributes, QStringLiteral("hasbindingshade"), false);
    canBeHiddenByUser = PvXMLParser::boolAttribute(attributes, QStringLiteral("canBeHiddenByUser"), false);
    hideGrafikInPreview = PvXMLParser::boolAttribute(attributes, QStringLiteral("hideGrafikInPreview"), false);
    imageSpotColor = PvValuePool::shared(PvXMLParser::attribute(attributes, QStringLiteral("imageSpotColor")));
    hasSpineFold = PvXMLParser::boolAttribute(attributes, QStringLiteral("hasspinefold"), false);
    spineFoldWidth = PvXMLParser::intAttribute(attributes, QStringLiteral("spinefoldwidth"), 0);
    tileWidth = PvXMLParser::intAttribute(attributes, QStringLiteral("tileWidth"), -1);
    tileHeight = PvXMLParser::intAttribute(attributes, QStringLiteral("tileHeight"), -1);

    // A frame goes round every page, whatever the file restricts it to.
    if (surroundingType == PvSurroundingTypeFrame) {
        pageType = PvPageType(PvPageTypeAll);
        alignment = PvPageAlignment(PvPageAlignmentEnum(127));
        pageNr = -1;
    }
}

void PvSurroundingDescriptionImpl::readChildren(const QDomElement& element)
{
    // Most surroundings have no children; the others are listed once for both names.
    const PvXMLChildren children(element);
    const QDomElement hole = children.first(u"hole");
    const QDomElement spirals = children.first(u"spirals");
    calendarHoleConfig = PvCalendarHoleConfig(hole);
    if (!spirals.isNull())
        spiralConfig = std::allocate_shared<const PvSpiralConfig>(PvBlockPoolAllocator<PvSpiralConfig>(), spirals);
}

PvSurroundingDescription::PvSurroundingDescription()
    : d(new PvSurroundingDescriptionImpl)
{
}

PvSurroundingDescription::PvSurroundingDescription(const PvProductType& productType, const QDomElement& element)
    : d(new PvSurroundingDescriptionImpl)
{
    d->productType = productType;
    d->readAttributes(element);
    d->readChildren(element);
}

PvSurroundingDescription::PvSurroundingDescription(const PvProductType& productType, const QDomElement& element, const QDomNamedNodeMap& attributes)
    : d(new PvSurroundingDescriptionImpl)
{
    // The typed readers take elements, so the attributes are carried over into a scratch one.
    QDomDocument scratch;
    QDomElement carrier = scratch.createElement(QStringLiteral("surrounding"));
    for (int i = 0; i < attributes.count(); ++i) {
        const QDomAttr attribute = attributes.item(i).toAttr();
        if (!attribute.isNull())
            carrier.setAttribute(attribute.name(), attribute.value());
    }
    d->productType = productType;
    d->readAttributes(carrier);
    d->readChildren(element);
}

PvSurroundingDescription::PvSurroundingDescription(const PvSurroundingDescription& other) = default;
PvSurroundingDescription::PvSurroundingDescription(PvSurroundingDescription&& other) noexcept = default;
PvSurroundingDescription& PvSurroundingDescription::operator=(const PvSurroundingDescription& other) = default;
PvSurroundingDescription& PvSurroundingDescription::operator=(PvSurroundingDescription&& other) noexcept = default;
PvSurroundingDescription::~PvSurroundingDescription() = default;

bool PvSurroundingDescription::isSuitable(const PvSurroundingKey& key) const
{
    const PvSurroundingKey own(PvPageContext(d->pageType, d->alignment), d->pageNr, d->variant);
    return own.isOkayFor(key);
}

PvProductType PvSurroundingDescription::productType() const { return d->productType; }
PvSurroundingType PvSurroundingDescription::surroundingType() const { return d->surroundingType; }
PvPageType PvSurroundingDescription::pageTypes() const { return d->pageType; }
PvPageAlignment PvSurroundingDescription::alignments() const { return d->alignment; }
int PvSurroundingDescription::pageNr() const { return d->pageNr; }
PvArticleVariants PvSurroundingDescription::variant() const { return d->variant; }
bool PvSurroundingDescription::paintOnTop() const { return d->paintOnTop; }
bool PvSurroundingDescription::canBeHiddenByUser() const { return d->canBeHiddenByUser; }
bool PvSurroundingDescription::hideGrafikInPreview() const { return d->hideGrafikInPreview; }
QString PvSurroundingDescription::imageResource() const { return d->image; }
QString PvSurroundingDescription::imageResourceSpotColor() const { return d->imageSpotColor; }
bool PvSurroundingDescription::hasBindingShade() const { return d->hasBindingShade; }
QRect PvSurroundingDescription::editableArea() const { return d->editableArea; }
PvCalendarHoleConfig PvSurroundingDescription::calendarHoleConfig() const { return d->calendarHoleConfig; }
PvSpiralConfig PvSurroundingDescription::spiralConfig() const { return d->spiral(); }
QSize PvSurroundingDescription::tileSize() const { return QSize(d->tileWidth, d->tileHeight); }
bool PvSurroundingDescription::hasSpineFold() const { return d->hasSpineFold && d->spineFoldWidth > 0; }
int PvSurroundingDescription::spineFoldWidth() const { return d->spineFoldWidth; }

int PvSurroundingDescription::spineFoldWithSafetyMargins() const
{
    // Clamped: a width near the int limit in a file must not overflow.
    return int(qBound(double(INT_MIN), d->spineFoldWidth * 1.2, double(INT_MAX)));
}

size_t PvSurroundingDescription::hashValue() const
{
    return qHash(d->pageNr, 0) ^ d->surroundingType.toUnderlying() ^ d->pageType.toUnderlying() ^ d->alignment.toUnderlying();
}

bool PvSurroundingDescription::operator==(const PvSurroundingDescription& other) const
{
    return d == other.d || (d->fields() == other.d->fields() && d->spiral() == other.d->spiral());
}

QList<QRect> PvSurroundingDescription::parseMask(const QString& text)
{
    QList<QRect> rectangles;
    const QStringList groups = text.split(QLatin1Char(';'));
    for (const QString& group : groups) {
        const QStringList numbers = group.split(QLatin1Char(' '));
        if (numbers.size() != 4)
            break;
        rectangles.append(QRect(QPoint(numbers[0].toInt(nullptr, 10), numbers[1].toInt(nullptr, 10)),
            QPoint(numbers[2].toInt(nullptr, 10), numbers[3].toInt(nullptr, 10))));
    }
    return rectangles;
}
