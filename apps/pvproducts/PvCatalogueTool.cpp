#include "PvCatalogueTool.h"

#include "PvBasisSettings.h"
#include "PvDirectoryConfig.h"
#include "PvEmptyMeansAllSet.h"
#include "PvJigTypeList.h"
#include "PvLegacyProductTypeConfigRegistry.h"
#include "PvLocaleAndTranslationManager.h"
#include "PvProductClassificationManager.h"
#include "PvProductLinter.h"
#include "PvProductTypeConfigRegistry.h"
#include "PvProductTypeDescription.h"
#include "PvTextTable.h"
#include "PvThematicCategory.h"

#include <QDomElement>
#include <QFileInfo>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <tuple>
#include <limits>

namespace {
// A page list is built page by page; beyond this a typo is far likelier than a real product.
constexpr int maximumPageCount = 100000;

const QCommandLineOption jsonOption(QStringLiteral("json"), QStringLiteral("Print JSON for scripts."));
const QCommandLineOption pagesOption(QStringLiteral("pages"), QStringLiteral("Also list the concrete pages of a project of <n> pages."), QStringLiteral("n"));
const QCommandLineOption classOption(QStringLiteral("class"), QStringLiteral("Article classes, comma-separated."), QStringLiteral("classes"));
const QCommandLineOption coverOption(QStringLiteral("cover"), QStringLiteral("Cover types, comma-separated."), QStringLiteral("covers"));
const QCommandLineOption outOption(QStringLiteral("out"), QStringLiteral("The PNG file to write."), QStringLiteral("file"));
const QCommandLineOption verticalOption(QStringLiteral("vertical"), QStringLiteral("Render the strip for a vertical edge."));

QStringList sortedNames(const PvProductTypeList& types)
{
    QStringList names;
    for (const PvProductType& type : types)
        names.append(type.name());
    std::sort(names.begin(), names.end());
    return names;
}

QString yesNo(bool value)
{
    return value ? QStringLiteral("yes") : QStringLiteral("no");
}

// A value's own name where the table has one (such as "panorama_page"), else its bits.
template <typename Wrapper>
QString nameOf(const Wrapper& wrapper)
{
    const auto& names = wrapper.enumToStringTable()->enumToString;
    const auto it = names.constFind(wrapper.value());
    return it != names.cend() ? *it : wrapper.encodeAsList().join(QLatin1Char('|'));
}

QJsonArray intArray(const QList<int>& values)
{
    QJsonArray array;
    for (int value : values)
        array.append(value);
    return array;
}

// The text form of a value for people: lists joined, nothing shown as "-".
QString plain(const QJsonValue& value)
{
    QString text;
    switch (value.type()) {
    case QJsonValue::Bool:
        return yesNo(value.toBool());
    case QJsonValue::Double:
        return QString::number(value.toDouble());
    case QJsonValue::Array: {
        QStringList items;
        for (const QJsonValue& item : value.toArray())
            items.append(plain(item));
        text = items.join(QStringLiteral(", "));
        break;
    }
    default:
        text = value.toString();
    }
    return text.isEmpty() ? QStringLiteral("-") : text;
}

// "key: value" lines, nested objects indented, in the order the keys were inserted.
void printObject(QTextStream& out, const QJsonObject& object, const QStringList& order, int indent)
{
    const QString pad(indent, QLatin1Char(' '));
    for (const QString& key : order) {
        const QJsonValue value = object.value(key);
        if (value.isObject()) {
            out << pad << key << ":\n";
            const QJsonObject inner = value.toObject();
            printObject(out, inner, inner.keys(), indent + 2);
        } else {
            out << pad << key << ": " << plain(value) << '\n';
        }
    }
}

template <typename Wrapper>
bool decodeEach(const QString& text, PvEmptyMeansAllSet<Wrapper>& set, QString& bad)
{
    const QStringList parts = text.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString& part : parts) {
        const auto value = Wrapper().enumToStringTable()->decode(part);
        if (!value) {
            bad = part.trimmed();
            return false;
        }
        set.insert(Wrapper(*value));
    }
    return true;
}
}

PvCatalogueTool::PvCatalogueTool()
    : m_out(stdout)
    , m_err(stderr)
{
    m_commands = {
        { QStringLiteral("list"), QStringLiteral("list"), QStringLiteral("Every loaded product type, sorted by name."), { jsonOption }, {}, [this] { return list(); } },
        { QStringLiteral("show"), QStringLiteral("show TYPE [--pages N]"), QStringLiteral("Everything the registry knows of a product type."), { jsonOption, pagesOption }, { QStringLiteral("TYPE") }, [this] { return show(); } },
        { QStringLiteral("find"), QStringLiteral("find [--class C] [--cover C]"), QStringLiteral("The product types of the given article classes and cover types."), { jsonOption, classOption, coverOption }, {}, [this] { return find(); } },
        { QStringLiteral("groups"), QStringLiteral("groups [--class C]"), QStringLiteral("Classification groups with their sizes in cm and inch."), { classOption }, {}, [this] { return groups(); } },
        { QStringLiteral("closest"), QStringLiteral("closest TYPE GROUP"), QStringLiteral("The product of GROUP closest in size to TYPE."), {}, { QStringLiteral("TYPE"), QStringLiteral("GROUP") }, [this] { return closest(); } },
        { QStringLiteral("legacy"), QStringLiteral("legacy [TYPE]"), QStringLiteral("Retired products with their replacement and conversion strategy."), {}, { QStringLiteral("[TYPE]") }, [this] { return legacy(); } },
        { QStringLiteral("category"), QStringLiteral("category NAME..."), QStringLiteral("Key, names, colour, colour sort key and spot colour of thematic categories."), {}, { QStringLiteral("NAME...") }, [this] { return category(); } },
        { QStringLiteral("spiral"), QStringLiteral("spiral TYPE --out FILE.png [--vertical]"), QStringLiteral("Renders the spiral strip of the product's first surrounding with a spiral."), { outOption, verticalOption }, { QStringLiteral("TYPE") }, [this] { return spiral(); } },
        { QStringLiteral("lint"), QStringLiteral("lint [--data DIR]"), QStringLiteral("Checks every product file of the products and legacy directories."), { jsonOption }, {}, [this] { return lint(); } },
    };
}

const PvCatalogueTool::Command* PvCatalogueTool::findCommand(const QString& name) const
{
    const auto it = std::find_if(m_commands.cbegin(), m_commands.cend(), [&](const Command& c) { return c.name == name; });
    return it == m_commands.cend() ? nullptr : &*it;
}

int PvCatalogueTool::run(const QStringList& arguments)
{
    const QCommandLineOption dataOption(QStringLiteral("data"), QStringLiteral("The data root (products, products-updates, resources, thumbnails, translations); default: the bundled sample catalogue."), QStringLiteral("dir"), QStringLiteral(PV_SAMPLE_DATA));
    const QCommandLineOption languageOption(QStringLiteral("language"), QStringLiteral("The user's locale, such as de_DE or en_GB."), QStringLiteral("locale"));
    const QCommandLineOption masterOption(QStringLiteral("master-mode"), QStringLiteral("Run as in master mode (untranslated category names shown too)."));
    const QCommandLineOption helpOption = m_parser.addHelpOption();
    m_parser.addOptions({ dataOption, languageOption, masterOption });

    // The command is the first argument that is neither an option nor an option's value.
    const Command* command = nullptr;
    for (int i = 1; i < arguments.size(); ++i) {
        const QString& argument = arguments.at(i);
        if (argument == QLatin1String("--data") || argument == QLatin1String("--language"))
            ++i;
        else if (!argument.startsWith(QLatin1Char('-'))) {
            command = findCommand(argument);
            if (!command)
                return usage(QStringLiteral("unknown command \"%1\"").arg(argument));
            break;
        }
    }

    QString description = QStringLiteral("Shows what the product library makes of a catalogue of product files.\n\nCommands:\n");
    for (const Command& c : std::as_const(m_commands))
        description += QStringLiteral("  %1\n      %2\n").arg(c.synopsis, c.description);
    if (command) {
        description = command->description;
        m_parser.addOptions(command->options);
        m_parser.addPositionalArgument(command->name, QString(), command->synopsis);
    } else {
        m_parser.addPositionalArgument(QStringLiteral("command"), QStringLiteral("One of the commands above."), QStringLiteral("<command> [options]"));
    }
    m_parser.setApplicationDescription(description);

    if (!m_parser.parse(arguments))
        return usage(m_parser.errorText());
    if (m_parser.isSet(helpOption)) {
        m_out << m_parser.helpText();
        return Success;
    }
    if (!command)
        return usage(QStringLiteral("no command given"));

    m_dataRoot = QDir(m_parser.value(dataOption));
    if (!m_dataRoot.exists())
        return usage(QStringLiteral("no such data directory: %1").arg(m_parser.value(dataOption)));
    PvDirectoryConfig::instance().setDataRoot(m_dataRoot);
    if (m_parser.isSet(languageOption)) {
        const QLocale locale(m_parser.value(languageOption));
        if (locale.language() == QLocale::C)
            return usage(QStringLiteral("unknown language \"%1\"").arg(m_parser.value(languageOption)));
        PvLocaleAndTranslationManager::instance().setLocale(locale);
    }
    PvBasisSettings::instance().setRunsInMasterMode(m_parser.isSet(masterOption));
    return command->run();
}

int PvCatalogueTool::usage(const QString& message)
{
    m_err << "pvproducts: " << message << "\nTry 'pvproducts --help'.\n";
    m_err.flush();
    return UsageError;
}

int PvCatalogueTool::unknownType(const QString& name)
{
    m_err << "pvproducts: unknown product type \"" << name << "\"\n";
    return Findings;
}

void PvCatalogueTool::printJson(const QJsonValue& value)
{
    const QJsonDocument document = value.isArray() ? QJsonDocument(value.toArray()) : QJsonDocument(value.toObject());
    m_out << document.toJson(QJsonDocument::Indented);
}

int PvCatalogueTool::list()
{
    const PvProductTypeConfigRegistry& registry = PvProductTypeConfigRegistry::instance();
    PvTextTable table({ QStringLiteral("NAME"), QStringLiteral("CLASS"), QStringLiteral("COVER"), QStringLiteral("VALID"), QStringLiteral("PAGES") });
    QJsonArray array;
    for (const QString& name : sortedNames(registry.allProducts())) {
        const PvProductTypeDescription* d = registry.description(PvProductType(name));
        table.addRow({ name, d->articleClass().encodeCSV(), d->coverType().encodeCSV(), yesNo(d->isValid()), QString::number(d->countAbstractPages()) });
        array.append(QJsonObject { { QStringLiteral("name"), name },
                                   { QStringLiteral("class"), d->articleClass().encodeCSV() },
                                   { QStringLiteral("cover"), d->coverType().encodeCSV() },
                                   { QStringLiteral("valid"), d->isValid() },
                                   { QStringLiteral("abstractPages"), int(d->countAbstractPages()) } });
    }
    if (m_parser.isSet(jsonOption))
        printJson(array);
    else
        table.print(m_out);
    return Success;
}

QJsonObject PvCatalogueTool::describe(const PvProductTypeDescription& d) const
{
    QJsonArray abstractPages;
    for (const PvPageType& page : d.pageTypes())
        abstractPages.append(nameOf(page));
    QJsonArray jigs;
    for (const PvJigType& jig : PvJigTypeList::allDownloadableElementTypes()) {
        if (d.supportsJigType(jig))
            jigs.append(jig.encodeCSV());
    }
    QJsonArray surroundings;
    for (const PvSurroundingDescription& s : d.surroundings()) {
        QString text = s.surroundingType().encodeCSV() + QStringLiteral(" on ") + s.pageTypes().encodeCSV();
        if (s.pageNr() >= 0)
            text += QStringLiteral(" page %1").arg(s.pageNr());
        if (s.spiralConfig().hasSpiral())
            text += QStringLiteral(", spiral of %1 loops").arg(s.spiralConfig().spiralCount());
        if (s.calendarHoleConfig().hasHole())
            text += QStringLiteral(", hole");
        surroundings.append(text);
    }
    QJsonArray variants;
    for (const auto& variant : d.variants().variants())
        variants.append(variant.id);
    const PvProductClassification classification = d.classification();
    const PvProductEditorAbilities editor = d.editorAbilities();

    return QJsonObject {
        { QStringLiteral("name"), d.productType().name() },
        { QStringLiteral("valid"), d.isValid() },
        { QStringLiteral("class"), d.articleClass().encodeCSV() },
        { QStringLiteral("cover"), d.coverType().encodeCSV() },
        { QStringLiteral("vario"), d.isVario() },
        { QStringLiteral("twoSided"), d.isTwoSided() },
        { QStringLiteral("simplex"), d.isSimplex() },
        { QStringLiteral("abstractPages"), abstractPages },
        { QStringLiteral("spine"), d.hasSpine() },
        { QStringLiteral("textOnSpine"), d.hasTextOnSpine() },
        { QStringLiteral("logoOnSpine"), d.mustPaintMiralLogoOnSpine() },
        { QStringLiteral("horizontalPages"), d.horizontalPages() },
        { QStringLiteral("productAlignment"), d.productAlignment().encodeCSV() },
        { QStringLiteral("imageEffects"), d.imageFX().encodeCSV() },
        { QStringLiteral("border"), d.canHaveBorder() },
        { QStringLiteral("shadow"), d.canHaveShadow() },
        { QStringLiteral("productionNumbering"), intArray(d.productionNumbering()) },
        { QStringLiteral("pagesWithContent"), intArray(d.pagesWithContent()) },
        { QStringLiteral("foldSafetyMargin"), d.foldSafetyMargin() },
        { QStringLiteral("tiltAngle"), d.tiltAngle() },
        { QStringLiteral("pageNumbers"), QJsonObject { { QStringLiteral("horizontalMargin"), d.pageNumberHorizontalIndent().value() },
                                                       { QStringLiteral("verticalMargin"), d.pageNumberVerticalIndent().value() },
                                                       { QStringLiteral("fontSize"), d.pageNumberFontSize() } } },
        { QStringLiteral("editor"), QJsonObject { { QStringLiteral("assistant"), editor.hasAssistant() },
                                                  { QStringLiteral("convertable"), editor.isConvertable() },
                                                  { QStringLiteral("pageNaming"), editor.pageNamingStyle().encodeCSV() },
                                                  { QStringLiteral("startPage"), editor.editorStartPage() },
                                                  { QStringLiteral("changeDesignButton"), editor.showChangeBaseDesignButton() },
                                                  { QStringLiteral("rotateBackgrounds"), editor.canRotateBackgrounds() },
                                                  { QStringLiteral("fullBackgroundOnEachPage"), editor.fullBackgroundOnEachPage() },
                                                  { QStringLiteral("jigs"), jigs } } },
        { QStringLiteral("surroundings"), surroundings },
        { QStringLiteral("variants"), variants },
        { QStringLiteral("extraProductionPages"), d.extraProductionPageCount() },
        { QStringLiteral("barcodes"), int(d.barcodeDefinitions().size()) },
        { QStringLiteral("priceListCategory"), d.priceListCategory() },
        { QStringLiteral("classification"), QJsonObject { { QStringLiteral("group"), classification.group().value() },
                                                          { QStringLiteral("cm"), classification.sizeName(PvDistanceUnit(PvCentimetre)) },
                                                          { QStringLiteral("inch"), classification.sizeName(PvDistanceUnit(PvInch)) } } },
        { QStringLiteral("preview3D"), d.preview3DDescription().url(false).toString() },
        { QStringLiteral("replacedBy"), d.replacedByProduct().name() },
        { QStringLiteral("conversionStrategy"), d.conversionStrategy().encodeCSV() },
    };
}

int PvCatalogueTool::show()
{
    const QStringList arguments = m_parser.positionalArguments();
    if (arguments.size() != 2)
        return usage(QStringLiteral("show needs one product type"));
    int pageCount = -1;
    if (m_parser.isSet(pagesOption)) {
        bool ok = false;
        pageCount = m_parser.value(pagesOption).toInt(&ok);
        if (!ok || pageCount < 0 || pageCount > maximumPageCount)
            return usage(QStringLiteral("--pages needs a page count from 0 to %1").arg(maximumPageCount));
    }
    const PvProductTypeConfigRegistry& registry = PvProductTypeConfigRegistry::instance();
    const PvProductType type(arguments.at(1));
    if (!registry.allProducts().contains(type))
        return unknownType(type.name());
    const PvProductTypeDescription& d = *registry.description(type);

    QJsonObject object = describe(d);
    static const QStringList order = {
        QStringLiteral("name"), QStringLiteral("valid"), QStringLiteral("class"), QStringLiteral("cover"), QStringLiteral("vario"),
        QStringLiteral("twoSided"), QStringLiteral("simplex"), QStringLiteral("abstractPages"), QStringLiteral("spine"),
        QStringLiteral("textOnSpine"), QStringLiteral("logoOnSpine"), QStringLiteral("horizontalPages"), QStringLiteral("productAlignment"),
        QStringLiteral("imageEffects"), QStringLiteral("border"), QStringLiteral("shadow"), QStringLiteral("productionNumbering"),
        QStringLiteral("pagesWithContent"), QStringLiteral("foldSafetyMargin"), QStringLiteral("tiltAngle"), QStringLiteral("pageNumbers"),
        QStringLiteral("editor"), QStringLiteral("surroundings"), QStringLiteral("variants"), QStringLiteral("extraProductionPages"),
        QStringLiteral("barcodes"), QStringLiteral("priceListCategory"), QStringLiteral("classification"), QStringLiteral("preview3D"),
        QStringLiteral("replacedBy"), QStringLiteral("conversionStrategy"),
    };
    if (pageCount < 0) {
        if (m_parser.isSet(jsonOption))
            printJson(object);
        else
            printObject(m_out, object, order, 0);
        return Success;
    }

    // The page list is built page by page: its cost grows with the count asked for.
    const PvPageTypeList pages = registry.pageTypes(type, pageCount);
    const QList<int> numbers = registry.productionNumberingList(type, int(pages.size()));
    PvTextTable table({ QStringLiteral("INDEX"), QStringLiteral("PAGE TYPE"), QStringLiteral("ALIGNMENT"), QStringLiteral("NUMBER"), QStringLiteral("CONTENT") });
    QJsonArray array;
    for (int i = 0; i < pages.size(); ++i) {
        const QString pageType = nameOf(pages.at(i));
        const QString alignment = d.pageAlignment(pages, i).encodeCSV();
        const bool content = d.contentAllowedOnPage(i);
        table.addRow({ QString::number(i), pageType, alignment, QString::number(numbers.value(i)), yesNo(content) });
        array.append(QJsonObject { { QStringLiteral("index"), i }, { QStringLiteral("pageType"), pageType }, { QStringLiteral("alignment"), alignment },
                                   { QStringLiteral("number"), numbers.value(i) }, { QStringLiteral("content"), content } });
    }
    if (m_parser.isSet(jsonOption)) {
        object.insert(QStringLiteral("pages"), array);
        printJson(object);
    } else {
        printObject(m_out, object, order, 0);
        m_out << "pages for " << pageCount << ":\n";
        table.print(m_out);
    }
    return Success;
}

int PvCatalogueTool::find()
{
    PvEmptyMeansAllSet<PvArticleClass> classes;
    PvEmptyMeansAllSet<PvCoverType> covers;
    QString bad;
    if (!decodeEach(m_parser.value(classOption), classes, bad))
        return usage(QStringLiteral("unknown article class \"%1\"").arg(bad));
    if (!decodeEach(m_parser.value(coverOption), covers, bad))
        return usage(QStringLiteral("unknown cover type \"%1\"").arg(bad));

    const PvProductTypeConfigRegistry& registry = PvProductTypeConfigRegistry::instance();
    const PvEmptyMeansAllSet<PvProductType> found = registry.findProducts(classes, covers);
    const QStringList names = sortedNames(PvProductTypeList(found.cbegin(), found.cend()));
    QString note;
    if (names.isEmpty()) {
        note = classes.isEmpty() && covers.isEmpty()
            ? QStringLiteral("No filter given: the library answers an empty set, which means every product.")
            : QStringLiteral("Nothing matches. The library answers an empty set, which its callers read as every product.");
    }
    if (m_parser.isSet(jsonOption)) {
        QJsonObject object { { QStringLiteral("products"), QJsonArray::fromStringList(names) } };
        if (!note.isEmpty())
            object.insert(QStringLiteral("note"), note);
        printJson(object);
    } else {
        for (const QString& name : names)
            m_out << name << '\n';
        if (!note.isEmpty())
            m_out << note << '\n';
    }
    return Success;
}

int PvCatalogueTool::groups()
{
    PvEmptyMeansAllSet<PvArticleClass> classes;
    QString bad;
    if (!decodeEach(m_parser.value(classOption), classes, bad))
        return usage(QStringLiteral("unknown article class \"%1\"").arg(bad));
    PvArticleClass mask;
    for (const PvArticleClass& articleClass : classes)
        mask |= articleClass;
    if (classes.isEmpty())
        mask = PvArticleClass(PvArticleClassEnum(std::numeric_limits<qint64>::max())); // every class

    const PvProductClassificationManager manager = PvProductTypeConfigRegistry::instance().createProductClassifationManager(mask);
    // The registry lists products in no particular order; people read groups by name and sizes small to large.
    QList<PvProductClassification> classifications = manager.classifications();
    std::sort(classifications.begin(), classifications.end(), [](const PvProductClassification& a, const PvProductClassification& b) {
        return std::make_tuple(a.group().value(), a.areaSize(), a.productType()) < std::make_tuple(b.group().value(), b.areaSize(), b.productType());
    });
    for (qsizetype i = 0; i < classifications.size();) {
        const PvProductClassificationGroup group = classifications.at(i).group();
        PvTextTable table({ QStringLiteral("  CM"), QStringLiteral("INCH"), QStringLiteral("PRODUCT") });
        for (; i < classifications.size() && classifications.at(i).group() == group; ++i) {
            const PvProductClassification& c = classifications.at(i);
            table.addRow({ QStringLiteral("  ") + c.sizeName(PvDistanceUnit(PvCentimetre)), c.sizeName(PvDistanceUnit(PvInch)), c.productType().name() });
        }
        if (group.value().isEmpty())
            continue;
        m_out << group.value() << " (" << group.visibleDescription() << ")\n";
        table.print(m_out);
    }
    return Success;
}

int PvCatalogueTool::closest()
{
    const QStringList arguments = m_parser.positionalArguments();
    if (arguments.size() != 3)
        return usage(QStringLiteral("closest needs a product type and a group"));
    const PvProductTypeConfigRegistry& registry = PvProductTypeConfigRegistry::instance();
    const PvProductType type(arguments.at(1));
    if (!registry.allProducts().contains(type))
        return unknownType(type.name());
    const PvProductClassificationManager manager = registry.createProductClassifationManager(PvArticleClass(PvArticleClassEnum(std::numeric_limits<qint64>::max())));
    const PvProductType closest = manager.closestProduct(type, arguments.at(2));
    if (!closest.isValid()) {
        m_err << "pvproducts: no product in group \"" << arguments.at(2) << "\"\n";
        return Findings;
    }
    m_out << closest.name() << '\n';
    return Success;
}

int PvCatalogueTool::legacy()
{
    const QStringList arguments = m_parser.positionalArguments();
    if (arguments.size() > 2)
        return usage(QStringLiteral("legacy takes at most one product type"));
    const PvLegacyProductTypeConfigRegistry& registry = PvLegacyProductTypeConfigRegistry::instance();
    QStringList names = sortedNames(registry.allProducts());
    if (arguments.size() == 2) {
        if (!names.contains(arguments.at(1)))
            return unknownType(arguments.at(1));
        names = QStringList { arguments.at(1) };
    }
    PvTextTable table({ QStringLiteral("NAME"), QStringLiteral("REPLACED BY"), QStringLiteral("CONVERSION") });
    for (const QString& name : std::as_const(names)) {
        const PvProductType type(name);
        const QString strategy = nameOf(registry.conversionStrategy(type));
        table.addRow({ name, registry.replacedByProduct(type).name(), strategy.isEmpty() ? QStringLiteral("-") : strategy });
    }
    table.print(m_out);
    return Success;
}

int PvCatalogueTool::category()
{
    const QStringList arguments = m_parser.positionalArguments().mid(1);
    if (arguments.isEmpty())
        return usage(QStringLiteral("category needs at least one name"));
    PvTextTable table({ QStringLiteral("KEY"), QStringLiteral("INTERNAL"), QStringLiteral("VISIBLE"), QStringLiteral("COLOUR"),
                        QStringLiteral("SORT KEY"), QStringLiteral("SPOT COLOUR") });
    for (const QString& name : arguments) {
        const PvThematicCategory category(name);
        const QColor color = category.color();
        table.addRow({ QString::number(category.hashValue()), category.internalName(), category.visibleName(),
                       color.isValid() ? color.name() : QStringLiteral("-"), QLatin1Char('"') + category.colorSortKey() + QLatin1Char('"'),
                       QString::number(category.toSpotColor().value()) });
    }
    table.print(m_out);
    return Success;
}

int PvCatalogueTool::spiral()
{
    const QStringList arguments = m_parser.positionalArguments();
    if (arguments.size() != 2)
        return usage(QStringLiteral("spiral needs one product type"));
    if (!m_parser.isSet(outOption))
        return usage(QStringLiteral("spiral needs --out FILE.png"));
    const PvProductTypeConfigRegistry& registry = PvProductTypeConfigRegistry::instance();
    const PvProductType type(arguments.at(1));
    if (!registry.allProducts().contains(type))
        return unknownType(type.name());
    const PvSurroundingDescriptionList surroundings = registry.description(type)->surroundings();
    const auto withSpiral = std::find_if(surroundings.cbegin(), surroundings.cend(),
                                         [](const PvSurroundingDescription& s) { return s.spiralConfig().hasSpiral(); });
    if (withSpiral == surroundings.cend()) {
        m_err << "pvproducts: product type \"" << type.name() << "\" has no surrounding with a spiral\n";
        return Findings;
    }
    const QImage strip = withSpiral->spiralConfig().spiralImage(m_parser.isSet(verticalOption) ? Qt::Vertical : Qt::Horizontal);
    if (strip.isNull()) {
        m_err << "pvproducts: the spiral strip is empty; is the loop picture \"" << withSpiral->spiralConfig().variant()
              << "\" in " << PvDirectoryConfig::instance().thumbnailsDir().path() << "?\n";
        return Findings;
    }
    const QString out = m_parser.value(outOption);
    if (!strip.save(out, "PNG")) {
        m_err << "pvproducts: cannot write " << out << '\n';
        return Findings;
    }
    m_out << "wrote " << out << " (" << strip.width() << " x " << strip.height() << ")\n";
    return Success;
}

int PvCatalogueTool::lint()
{
    PvProductLinter linter;
    const PvDirectoryConfig& config = PvDirectoryConfig::instance();
    linter.lint({ config.productsDir(true), config.productsDir(false) }, QDir(config.resource(QStringLiteral("products/legacy"), false)));
    const QList<PvLintFinding> findings = linter.findings();
    const int errors = linter.count(PvLintFinding::Error);
    const int warnings = linter.count(PvLintFinding::Warning);
    auto severity = [](const PvLintFinding& f) { return f.severity == PvLintFinding::Error ? QStringLiteral("error") : QStringLiteral("warning"); };
    if (m_parser.isSet(jsonOption)) {
        QJsonArray array;
        for (const PvLintFinding& f : findings)
            array.append(QJsonObject { { QStringLiteral("file"), f.file }, { QStringLiteral("line"), f.line }, { QStringLiteral("column"), f.column },
                                       { QStringLiteral("severity"), severity(f) }, { QStringLiteral("message"), f.message } });
        printJson(QJsonObject { { QStringLiteral("findings"), array }, { QStringLiteral("files"), linter.fileCount() },
                                { QStringLiteral("errors"), errors }, { QStringLiteral("warnings"), warnings } });
    } else {
        for (const PvLintFinding& f : findings)
            m_out << f.file << ':' << f.line << ':' << f.column << ": " << severity(f) << ": " << f.message << '\n';
        m_out << linter.fileCount() << " files checked: " << errors << " errors, " << warnings << " warnings\n";
    }
    return errors > 0 ? Findings : Success;
}
