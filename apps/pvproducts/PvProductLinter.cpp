#include "PvProductLinter.h"

#include "PvArticleClass.h"
#include "PvCoverType.h"
#include "PvImageFXs.h"
#include "PvJigType.h"
#include "PvPageAlignment.h"
#include "PvPageNamingStyle.h"
#include "PvPageType.h"
#include "PvPlatformIndependent.h"
#include "PvProductAlignmentStyle.h"
#include "PvProductTypeDescription.h"
#include "PvSurroundingType.h"
#include "PvXMLRewriterStrategy.h"

#include <QDomDocument>
#include <QDomNamedNodeMap>
#include <QFile>

#include <algorithm>

namespace {
// The loader rejects wider ranges; checking here tells the author before that.
constexpr qint64 maximumRangeWidth = 100000;

QString quoted(const QString& text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

template <typename Wrapper>
bool decodes(const QString& piece)
{
    return Wrapper().enumToStringTable()->decode(piece).has_value();
}

// The pieces of a comma list that the wrapper's table does not know.
template <typename Wrapper>
QStringList unknownPieces(const QString& text)
{
    QStringList unknown;
    const QStringList pieces = text.split(QLatin1Char(','));
    for (const QString& piece : pieces) {
        if (!piece.trimmed().isEmpty() && !decodes<Wrapper>(piece))
            unknown.append(piece.trimmed());
    }
    return unknown;
}

struct EnumKind {
    PvValueKind kind;
    const char* noun;
    QStringList (*unknown)(const QString&);
};

const EnumKind enumKinds[] = {
    { PvValueKind::PageTypes, "page type", &unknownPieces<PvPageType> },
    { PvValueKind::PageTypeList, "page type", &unknownPieces<PvPageType> },
    { PvValueKind::Alignments, "alignment", &unknownPieces<PvPageAlignment> },
    { PvValueKind::ArticleClass, "article class", &unknownPieces<PvArticleClass> },
    { PvValueKind::CoverType, "cover type", &unknownPieces<PvCoverType> },
    { PvValueKind::ImageFXs, "image effect", &unknownPieces<PvImageFXs> },
    { PvValueKind::ProductAlignment, "product alignment style", &unknownPieces<PvProductAlignmentStyle> },
    { PvValueKind::SurroundingType, "surrounding type", &unknownPieces<PvSurroundingType> },
    { PvValueKind::RewriterStrategy, "conversion strategy", &unknownPieces<PvXMLRewriterStrategy> },
    { PvValueKind::PageNamingStyle, "page naming style", &unknownPieces<PvPageNamingStyle> },
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
}

int PvProductLinter::count(PvLintFinding::Severity severity) const
{
    return int(std::count_if(m_findings.cbegin(), m_findings.cend(), [severity](const PvLintFinding& f) { return f.severity == severity; }));
}

void PvProductLinter::lint(const QList<QDir>& productDirs, const QDir& legacyDir)
{
    Definitions current;
    for (const QDir& dir : productDirs) {
        const Definitions found = lintDirectory(dir);
        for (auto it = found.cbegin(); it != found.cend(); ++it) {
            const auto winner = current.constFind(it.key());
            if (winner == current.cend())
                current.insert(it.key(), it.value());
            else
                report(*it, PvLintFinding::Warning,
                       QStringLiteral("product type %1 is replaced by the one in %2, which is read first").arg(quoted(it.key()), winner->file));
        }
    }
    lintDirectory(legacyDir);
    for (const Place& reference : std::as_const(m_references)) {
        if (!current.contains(reference.product))
            report(reference, PvLintFinding::Error, QStringLiteral("\"replacedBy\" names no known product: %1").arg(quoted(reference.product)));
    }
    std::stable_sort(m_findings.begin(), m_findings.end(), [](const PvLintFinding& a, const PvLintFinding& b) {
        return std::tie(a.file, a.line, a.column) < std::tie(b.file, b.line, b.column);
    });
}

PvProductLinter::Definitions PvProductLinter::lintDirectory(const QDir& dir)
{
    Definitions definitions;
    const QFileInfoList files = PvPlatformIndependent::instance().getDirectFilesInDirectoryAsFileInfos(dir, {});
    for (const QFileInfo& file : files)
        lintFile(file, definitions);
    return definitions;
}

void PvProductLinter::lintFile(const QFileInfo& info, Definitions& definitions)
{
    ++m_fileCount;
    // Paths as the author would type them: relative when below the working directory.
    const QString relative = QDir::current().relativeFilePath(info.absoluteFilePath());
    m_file = relative.startsWith(QLatin1String("..")) ? info.absoluteFilePath() : relative;
    m_positions.reset();

    QFile device(info.filePath());
    if (!device.open(QIODevice::ReadOnly)) {
        m_findings.append({ m_file, 0, 0, PvLintFinding::Error, QStringLiteral("cannot be read: ") + device.errorString() });
        return;
    }
    const QString text = QString::fromUtf8(device.readAll());
    QDomDocument document;
    QString error;
    int line = 0;
    int column = 0;
    if (!document.setContent(text, &error, &line, &column)) {
        m_findings.append({ m_file, line, column, PvLintFinding::Error, QStringLiteral("not well-formed XML, the file is skipped: ") + error });
        return;
    }
    m_positions.emplace(text);
    const QDomElement product = document.documentElement().firstChildElement(QStringLiteral("product"));
    if (product.isNull()) {
        report(document.documentElement(), PvLintFinding::Error,
               QStringLiteral("no \"product\" element: the file loads as a product with an empty name and default values"));
        return;
    }
    lintElement(product, QStringLiteral("product"));
    lintValidity(product);

    const PvSourcePositions::Position position = m_positions->element(product);
    const QString replacement = product.attribute(QStringLiteral("replacedBy")).trimmed();
    if (!replacement.isEmpty())
        m_references.append({ m_file, m_positions->attribute(product, QStringLiteral("replacedBy")), replacement });
    const QString name = product.attribute(QStringLiteral("name")).trimmed();
    const auto earlier = definitions.constFind(name);
    if (earlier != definitions.cend())
        report(*earlier, PvLintFinding::Warning, QStringLiteral("product type %1 is defined again in %2, which wins").arg(quoted(name), m_file));
    definitions.insert(name, { m_file, position, name });
}

void PvProductLinter::lintElement(const QDomElement& element, const QString& path)
{
    const PvElementRule* rule = PvProductFileVocabulary::rule(path);
    if (!rule) {
        report(element, PvLintFinding::Warning,
               QStringLiteral("unknown element %1 in %2 is ignored").arg(quoted(element.tagName()), quoted(element.parentNode().nodeName())));
        return;
    }
    lintAttributes(element, *rule);
    if (rule->text != PvValueKind::Ignored)
        lintValue(element, QString(), rule->text, element.text());
    if (path == QLatin1String("product/preview3D"))
        lintPreview(element);

    const bool jigs = path.endsWith(QLatin1String("/jigs"));
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        if (jigs && !decodes<PvJigType>(child.tagName())) {
            report(child, PvLintFinding::Error, QStringLiteral("unknown jig type %1 is ignored").arg(quoted(child.tagName())));
            continue;
        }
        lintElement(child, path + QLatin1Char('/') + (jigs ? PvProductFileVocabulary::jigPlaceholder() : child.tagName()));
    }
}

void PvProductLinter::lintAttributes(const QDomElement& element, const PvElementRule& rule)
{
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        const QDomAttr attribute = attributes.item(i).toAttr();
        const auto known = std::find_if(rule.attributes.cbegin(), rule.attributes.cend(),
                                        [&](const PvAttributeRule& r) { return attribute.name() == QLatin1String(r.name); });
        if (known == rule.attributes.cend())
            report(element, PvLintFinding::Warning,
                   QStringLiteral("unknown attribute %1 on %2 is ignored").arg(quoted(attribute.name()), quoted(element.tagName())), attribute.name());
        else
            lintValue(element, attribute.name(), known->kind, attribute.value());
    }
    for (const PvAttributeRule& attribute : rule.attributes) {
        if (attribute.required && !element.hasAttribute(QLatin1String(attribute.name)))
            report(element, PvLintFinding::Error,
                   QStringLiteral("%1 has no attribute %2").arg(quoted(element.tagName()), quoted(QLatin1String(attribute.name))));
    }
}

void PvProductLinter::lintValue(const QDomElement& element, const QString& attribute, PvValueKind kind, const QString& text)
{
    auto error = [&](const QString& message) {
        const QString what = attribute.isEmpty() ? QStringLiteral("the text of ") + quoted(element.tagName()) : QStringLiteral("attribute ") + quoted(attribute);
        report(element, PvLintFinding::Error, what + QStringLiteral(": ") + message, attribute);
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
    case PvValueKind::IntList:
    case PvValueKind::PageRanges: {
        const QStringList parts = text.simplified().split(QLatin1Char(','), Qt::SkipEmptyParts);
        for (const QString& part : parts) {
            if (kind == PvValueKind::PageRanges && part.contains(QLatin1Char('-')))
                lintPageRange(element, attribute, part, false);
            else if (!isInt(part))
                error(quoted(part.trimmed()) + QStringLiteral(" is not a whole number and is skipped"));
        }
        return;
    }
    case PvValueKind::PageRange:
        lintPageRange(element, attribute, text, true);
        return;
    default:
        break;
    }
    for (const EnumKind& enumKind : enumKinds) {
        if (enumKind.kind != kind)
            continue;
        for (const QString& piece : enumKind.unknown(text))
            error(QStringLiteral("unknown %1 %2 counts as nothing").arg(QLatin1String(enumKind.noun), quoted(piece)));
        if (kind == PvValueKind::PageTypeList) {
            const QStringList pieces = text.split(QLatin1Char(','));
            if (std::any_of(pieces.cbegin(), pieces.cend(), [](const QString& piece) { return piece.trimmed().isEmpty(); }))
                error(QStringLiteral("an empty entry stands for an illegal page"));
        }
    }
}

void PvProductLinter::lintPageRange(const QDomElement& element, const QString& attribute, const QString& part, bool strict)
{
    auto error = [&](const QString& message) {
        const QString what = attribute.isEmpty() ? QStringLiteral("the text of ") + quoted(element.tagName()) : QStringLiteral("attribute ") + quoted(attribute);
        report(element, PvLintFinding::Error, what + QStringLiteral(": ") + quoted(part.trimmed()) + message, attribute);
    };
    const QStringList pieces = part.split(QLatin1Char('-'));
    bool firstOk = false;
    bool lastOk = false;
    const qint64 first = pieces.constFirst().trimmed().toLongLong(&firstOk);
    const qint64 last = pieces.constLast().trimmed().toLongLong(&lastOk);
    if (!firstOk || !lastOk)
        error(strict ? QStringLiteral(" is not a page or a range a-b; the element is skipped") : QStringLiteral(" is not a range a-b of whole numbers"));
    else if (strict && last < 0)
        error(QStringLiteral(" ends below page 0; the element is skipped"));
    else if (qAbs(last - first) >= maximumRangeWidth)
        error(QStringLiteral(" spans more than %1 pages and is skipped").arg(maximumRangeWidth));
}

void PvProductLinter::lintPreview(const QDomElement& preview)
{
    const QDomElement mesh = preview.firstChildElement(QStringLiteral("mesh"));
    if (!mesh.attribute(QStringLiteral("file")).isEmpty() && preview.firstChildElement(QStringLiteral("textureTarget")).isNull())
        report(mesh, PvLintFinding::Error, QStringLiteral("a mesh needs at least one \"textureTarget\"; the product gets no 3D preview"));
}

void PvProductLinter::lintValidity(const QDomElement& product)
{
    // The loader's own warnings would repeat, less precisely, what the checks above report.
    const QtMessageHandler previous = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) { });
    const PvProductTypeDescription description(product);
    qInstallMessageHandler(previous);
    if (description.isValid())
        return;
    const QString why = description.articleClass().isValid()
        ? QStringLiteral("\"binding\" must name a cover type (only the class \"prints\" goes without)")
        : QStringLiteral("\"class\" must name exactly one known article class");
    report(product, PvLintFinding::Error, QStringLiteral("product %1 is not valid: %2").arg(quoted(description.productType().name()), why));
}

void PvProductLinter::report(const QDomElement& element, PvLintFinding::Severity severity, const QString& message, const QString& attribute)
{
    const PvSourcePositions::Position position = attribute.isEmpty() ? m_positions->element(element) : m_positions->attribute(element, attribute);
    report(Place { m_file, position, QString() }, severity, message);
}

void PvProductLinter::report(const Place& place, PvLintFinding::Severity severity, const QString& message)
{
    m_findings.append({ place.file, place.position.first, place.position.second, severity, message });
}
