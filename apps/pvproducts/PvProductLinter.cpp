#include "PvProductLinter.h"

#include "PvArticleClass.h"
#include "PvCoverType.h"
#include "PvDiagnosticCollector.h"
#include "PvDiagnostics.h"
#include "PvImageFXs.h"
#include "PvJigType.h"
#include "PvPageAlignment.h"
#include "PvPageNamingStyle.h"
#include "PvPageType.h"
#include "PvPlatformIndependent.h"
#include "PvProductAlignmentStyle.h"
#include "PvProductTypeDescription.h"
#include "PvProductTypeDescriptionReader.h"
#include "PvSurroundingType.h"
#include "PvXMLRewriterStrategy.h"

#include <QDomDocument>
#include <QDomNamedNodeMap>
#include <QFile>

#include <algorithm>
#include <tuple>

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

// The library's own warnings repeat, less precisely, what its diagnostics say.
class QuietLibrary
{
public:
    QuietLibrary()
        : m_previous(qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) { }))
    {
    }
    ~QuietLibrary() { qInstallMessageHandler(m_previous); }
    QuietLibrary(const QuietLibrary&) = delete;
    QuietLibrary& operator=(const QuietLibrary&) = delete;

private:
    QtMessageHandler m_previous;
};

QList<QFileInfo> filesOf(const QDir& dir)
{
    return PvPlatformIndependent::instance().getDirectFilesInDirectoryAsFileInfos(dir, {});
}
}

PvProductLinter::PvProductLinter(const QDir& dataRoot)
    : m_dataRoot(dataRoot)
{
    const QDir thumbnails(dataRoot.filePath(QStringLiteral("thumbnails")));
    for (const QFileInfo& file : filesOf(thumbnails))
        m_thumbnails.append(file.fileName());
}

int PvProductLinter::count(const QList<PvDiagnostic>& findings, PvDiagnostic::Severity severity)
{
    return int(std::count_if(findings.cbegin(), findings.cend(), [severity](const PvDiagnostic& f) { return f.severity == severity; }));
}

QList<PvDiagnostic> PvProductLinter::findings() const
{
    QList<PvDiagnostic> sorted = m_findings;
    for (const Reference& reference : m_references) {
        if (!m_knownProducts.contains(reference.product))
            sorted.append(reference.place);
    }
    std::stable_sort(sorted.begin(), sorted.end(), [](const PvDiagnostic& a, const PvDiagnostic& b) {
        return std::tie(a.file, a.line, a.column) < std::tie(b.file, b.line, b.column);
    });
    return sorted;
}

void PvProductLinter::lintCatalogue()
{
    lintProductDirectory(QDir(m_dataRoot.filePath(QStringLiteral("products-updates"))), Kind::Products);
    lintProductDirectory(QDir(m_dataRoot.filePath(QStringLiteral("products"))), Kind::Products);
    lintProductDirectory(QDir(m_dataRoot.filePath(QStringLiteral("resources/products/legacy"))), Kind::Legacy);
    const QFileInfo colors(m_dataRoot.filePath(QStringLiteral("resources/colors.xml")));
    if (colors.isFile())
        lintColors(colors);
    const QFileInfo translations(m_dataRoot.filePath(QStringLiteral("translations")));
    if (translations.isDir())
        lintPath(translations);
}

void PvProductLinter::lintPaths(const QStringList& paths)
{
    // The catalogue is the context: the products a "replacedBy" may name.
    {
        const QuietLibrary quiet;
        const PvDiagnosticCollector ignored;
        for (const char* name : { "products-updates", "products" }) {
            const auto descriptions = PvProductTypeDescriptionReader(QDir(m_dataRoot.filePath(QLatin1String(name)))).readDir();
            for (auto it = descriptions.cbegin(); it != descriptions.cend(); ++it)
                m_knownProducts.insert(it.key().name());
            qDeleteAll(descriptions);
        }
    }
    for (const QString& path : paths)
        lintPath(QFileInfo(path));
}

void PvProductLinter::lintPath(const QFileInfo& path)
{
    if (path.isDir()) {
        const QDir dir(path.filePath());
        if (path.fileName() == QLatin1String("translations")) {
            for (const QFileInfo& file : filesOf(dir)) {
                if (file.suffix() == QLatin1String("ts"))
                    lintTranslations(file);
            }
            return;
        }
        lintProductDirectory(dir, path.filePath().contains(QLatin1String("legacy")) ? Kind::Legacy : Kind::Products);
    } else if (path.fileName() == QLatin1String("colors.xml")) {
        lintColors(path);
    } else if (path.suffix() == QLatin1String("ts")) {
        lintTranslations(path);
    } else {
        PvDiagnosticCollector collector;
        {
            const QuietLibrary quiet;
            delete PvProductTypeDescriptionReader(path.dir()).readFile(path);
        }
        ++m_fileCount;
        open(path);
        addLibraryDiagnostics(collector.takeDiagnostics());
        lintProductFile(path, path.filePath().contains(QLatin1String("legacy")) ? Kind::Legacy : Kind::Products);
    }
}

void PvProductLinter::lintProductDirectory(const QDir& dir, Kind kind)
{
    PvDiagnosticCollector collector;
    {
        const QuietLibrary quiet;
        const auto descriptions = PvProductTypeDescriptionReader(dir).readDir();
        for (auto it = descriptions.cbegin(); it != descriptions.cend(); ++it) {
            if (kind == Kind::Products)
                m_knownProducts.insert(it.key().name());
        }
        qDeleteAll(descriptions);
    }
    const QList<PvDiagnostic> reported = collector.takeDiagnostics();
    for (const QFileInfo& file : filesOf(dir)) {
        ++m_fileCount;
        QList<PvDiagnostic> own;
        std::copy_if(reported.cbegin(), reported.cend(), std::back_inserter(own), [&](const PvDiagnostic& d) { return d.file == file.filePath(); });
        open(file);
        addLibraryDiagnostics(own);
        lintProductFile(file, kind);
    }
}

QDomElement PvProductLinter::open(const QFileInfo& file)
{
    m_file = displayPath(file.filePath());
    m_positions.reset();
    m_text.clear();
    QFile device(file.filePath());
    if (!device.open(QIODevice::ReadOnly))
        return {};
    m_text = QString::fromUtf8(device.readAll());
    QDomDocument document;
    if (!document.setContent(m_text))
        return {};
    m_positions.emplace(m_text);
    return document.documentElement();
}

void PvProductLinter::addLibraryDiagnostics(QList<PvDiagnostic> diagnostics)
{
    for (PvDiagnostic& d : diagnostics) {
        d.file = displayPath(d.file);
        if (d.place == PvDiagnostic::StartTagEnd && m_positions) {
            const PvSourcePositions::Position position = m_positions->refine(d.line, d.column, d.attribute);
            d.line = position.first;
            d.column = position.second;
            d.place = PvDiagnostic::Exact;
        }
        m_findings.append(d);
    }
}

void PvProductLinter::lintProductFile(const QFileInfo& file, Kind kind)
{
    // open() has read the file; the library has said why when it is not XML.
    Q_UNUSED(file);
    if (!m_positions)
        return;
    QDomDocument document;
    document.setContent(m_text);
    const QDomElement product = document.documentElement().firstChildElement(QStringLiteral("product"));
    if (product.isNull())
        return;
    lintElement(product, QStringLiteral("product"));
    lintProduct(product, kind);
}

void PvProductLinter::lintProduct(const QDomElement& product, Kind kind)
{
    Q_UNUSED(kind);
    const QString replacement = product.attribute(QStringLiteral("replacedBy")).trimmed();
    if (!replacement.isEmpty()) {
        const PvSourcePositions::Position position = m_positions->attribute(product, QStringLiteral("replacedBy"));
        PvDiagnostic place;
        place.file = m_file;
        place.line = position.first;
        place.column = position.second;
        place.severity = PvDiagnostic::Error;
        place.message = QStringLiteral("\"replacedBy\" names no known product: %1").arg(quoted(replacement));
        place.suggestion = PvDiagnostics::closest(replacement, QStringList(m_knownProducts.cbegin(), m_knownProducts.cend()));
        place.found = place.suggestion.isEmpty() ? QString() : replacement;
        m_references.append({ place, replacement });
    }
    const QDomElement tilt = product.firstChildElement(QStringLiteral("editorAbilities")).firstChildElement(QStringLiteral("pageTilt"));
    if (!tilt.isNull() && tilt.attribute(QStringLiteral("disabled")).trimmed().toLower() == QLatin1String("true") && !tilt.hasAttribute(QStringLiteral("pages")))
        report(tilt, PvDiagnostic::Warning, QStringLiteral("\"pageTilt\" disabled without \"pages\" locks the tilt of every page"), QStringLiteral("disabled"));
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
        if (picture.isEmpty() || m_thumbnails.contains(picture))
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

void PvProductLinter::report(const QDomElement& element, PvDiagnostic::Severity severity, const QString& message, const QString& attribute,
                             const QString& suggestion, const QString& found)
{
    const PvSourcePositions::Position position = attribute.isEmpty() ? m_positions->element(element) : m_positions->attribute(element, attribute);
    // The library may have said the same already: one truth, one line.
    const bool known = std::any_of(m_findings.cbegin(), m_findings.cend(), [&](const PvDiagnostic& f) {
        return f.file == m_file && f.line == position.first && f.column == position.second && f.message == message;
    });
    if (known)
        return;
    PvDiagnostic finding;
    finding.file = m_file;
    finding.line = position.first;
    finding.column = position.second;
    finding.severity = severity;
    finding.message = message;
    finding.attribute = attribute;
    finding.suggestion = suggestion;
    finding.found = suggestion.isEmpty() ? QString() : found;
    m_findings.append(finding);
}

void PvProductLinter::reportFile(PvDiagnostic::Severity severity, const QString& message)
{
    PvDiagnostic finding;
    finding.file = m_file;
    finding.line = finding.column = 1;
    finding.severity = severity;
    finding.message = message;
    finding.place = PvDiagnostic::WholeFile;
    m_findings.append(finding);
}

QString PvProductLinter::displayPath(const QString& path) const
{
    // Paths as the author would type them: relative when below the working directory.
    const QString absolute = QFileInfo(path).absoluteFilePath();
    const QString relative = QDir::current().relativeFilePath(absolute);
    return relative.startsWith(QLatin1String("..")) ? absolute : relative;
}
