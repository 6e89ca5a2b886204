#include "PvDefaultTemplateMap.h"

#include "PvProductDiagnostics.h"

#include "PvPageTypeList.h"
#include "PvProductPropertiesLogging.h"
#include "PvXMLParser.h"

#include <QStringList>

#include <algorithm>
#include <tuple>

namespace {
// The house background of pages whose default names none.
const char* const houseBackground = "201";
// Every default makes three entries per page type and alignment it names. Real products hold
// a few thousand at most; the bound keeps a file's entries from costing more than a few MB.
constexpr qsizetype maximumEntries = 20000;
}

PvDefaultTemplateMap::PvDefaultTemplateMap(const QDomElement& defaults)
{
    applyDefaultsNode(defaults);
}

void PvDefaultTemplateMap::applyDefaultsNode(const QDomElement& defaults)
{
    const QString tag = QStringLiteral("default");
    QDomElement firstSkipped;
    for (QDomElement entry = defaults.firstChildElement(tag); !entry.isNull(); entry = entry.nextSiblingElement(tag)) {
        if (!applyDefault(entry) && firstSkipped.isNull())
            firstSkipped = entry;
    }
    if (firstSkipped.isNull())
        return;
    qCWarning(lcProductProperties, "Default templates beyond %lld entries skipped", qlonglong(maximumEntries));
    if (PvProductDiagnostics::listening()) {
        PvProductDiagnostics::report(PvDiagnostic::Error, firstSkipped,
                                     QStringLiteral("more than %1 default templates; this one and those after it are skipped").arg(maximumEntries));
    }
}

bool PvDefaultTemplateMap::store(const PvDefaultTemplateKey& key, const QString& name)
{
    if (m_templates.size() >= maximumEntries && !m_templates.contains({ key }))
        return false;
    m_templates.insert({ key }, name);
    return true;
}

bool PvDefaultTemplateMap::applyDefault(const QDomElement& entry)
{
    const PvPageTypeList pageTypes(PvXMLParser::attribute(entry, QStringLiteral("pageType")));
    if (PvProductDiagnostics::listening() && !entry.hasAttribute(QStringLiteral("pageType")))
        PvProductDiagnostics::report(PvDiagnostic::Error, entry, QStringLiteral("a \"default\" without \"pageType\" applies to no page"));
    PvProductDiagnostics::checkEnum<PvPageType>(entry, QStringLiteral("pageType"), "page type");
    PvProductDiagnostics::checkEnum<PvPageAlignment>(entry, QStringLiteral("alignment"), "alignment");
    const QList<PvPageAlignmentEnum> alignments =
        PvPageAlignment(PvXMLParser::attribute(entry, QStringLiteral("alignment"), QStringLiteral("left,right,top,bottom,center,middle")))
            .splitToBitsSorted();
    const int pageNumber = PvXMLParser::intAttribute(entry, QStringLiteral("pageNr"), -1);
    const int scenePageCount = PvXMLParser::intAttribute(entry, QStringLiteral("scenePageCount"), -1);

    const QStringList templates = PvXMLParser::attribute(entry, QStringLiteral("templates")).split(QLatin1Char(','), Qt::SkipEmptyParts);
    const QString layoutDefault = templates.size() == 2 ? templates.at(1) : QString();
    const QString backgroundDefault = templates.isEmpty() ? QString::fromLatin1(houseBackground) : templates.first();
    const QString layout = removeUmlauts(PvXMLParser::attribute(entry, QStringLiteral("layout"), layoutDefault).trimmed());
    const QString background = removeUmlauts(PvXMLParser::attribute(entry, QStringLiteral("background"), backgroundDefault).trimmed());
    const QString design = removeUmlauts(PvXMLParser::attribute(entry, QStringLiteral("design")));

    bool complete = true;
    for (const PvPageType& pageType : pageTypes) {
        for (const PvPageAlignmentEnum alignment : alignments) {
            const PvPageContext context(pageType, alignment);
            complete &= store(PvDefaultTemplateKey(context, PvDefaultTemplateTypeLayout, pageNumber, scenePageCount), layout);
            complete &= store(PvDefaultTemplateKey(context, PvDefaultTemplateTypeBackground, pageNumber, scenePageCount), background);
            complete &= store(PvDefaultTemplateKey(context, PvDefaultTemplateTypeDesign, pageNumber, scenePageCount), design);
        }
    }
    return complete;
}

QString PvDefaultTemplateMap::findTemplate(const PvDefaultTemplateKey& key) const
{
    const QString exact = m_templates.value({ key });
    if (!exact.isEmpty())
        return exact;
    if (key.scenePageCount() != -1) {
        const QString forScene = m_templates.value({ key.generalized(key.scenePageCount()) });
        if (!forScene.isEmpty())
            return forScene;
    }
    return m_templates.value({ key.generalized(-1) });
}

QString PvDefaultTemplateMap::removeUmlauts(const QString& text)
{
    QString folded = text;
    folded.replace(QStringLiteral(u"ä"), QStringLiteral("ae"), Qt::CaseInsensitive);
    folded.replace(QStringLiteral(u"ö"), QStringLiteral("oe"), Qt::CaseInsensitive);
    folded.replace(QStringLiteral(u"ü"), QStringLiteral("ue"), Qt::CaseInsensitive);
    folded.replace(QStringLiteral(u"ß"), QStringLiteral("ss"), Qt::CaseInsensitive);
    return folded;
}

QList<PvDefaultTemplateMap::Entry> PvDefaultTemplateMap::entries() const
{
    QList<Entry> list;
    list.reserve(m_templates.size());
    for (auto it = m_templates.cbegin(); it != m_templates.cend(); ++it)
        list.append(Entry { it.key().key, it.value() });
    // A hash has no order of its own: sort so that listings compare between runs.
    const auto fields = [](const PvDefaultTemplateKey& key) {
        return std::make_tuple(key.pageType().toUnderlying(), key.pageAlignment().toUnderlying(), int(key.defaultTemplateType()),
                               key.scenePageCount(), key.pageNumber());
    };
    std::sort(list.begin(), list.end(), [&fields](const Entry& a, const Entry& b) { return fields(a.key) < fields(b.key); });
    return list;
}
