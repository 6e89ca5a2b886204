#include "PvProductLinter.h"

#include "PvDiagnosticCollector.h"
#include "PvDiagnostics.h"
#include "PvJsonOutput.h"
#include "PvPlatformIndependent.h"
#include "PvProductTypeDescription.h"
#include "PvProductTypeDescriptionReader.h"

#include <QDomDocument>
#include <QFile>

#include <algorithm>
#include <tuple>

using PvDiagnostics::quoted;

namespace {
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
            const auto descriptions = PvProductTypeDescriptionReader(QDir(m_dataRoot.filePath(QLatin1String(name)))).readDescriptions();
            for (const PvProductTypeDescription* description : descriptions)
                m_knownProducts.insert(description->productType().name());
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
        const auto descriptions = PvProductTypeDescriptionReader(dir).readDescriptions();
        for (const PvProductTypeDescription* description : descriptions) {
            if (kind == Kind::Products)
                m_knownProducts.insert(description->productType().name());
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
    m_file = PvJsonOutput::displayPath(file.filePath());
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
        d.file = PvJsonOutput::displayPath(d.file);
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

