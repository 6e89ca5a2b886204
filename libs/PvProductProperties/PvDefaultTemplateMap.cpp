#include "PvDefaultTemplateMap.h"

#include "PvProductDiagnostics.h"

#include "PvPageTypeList.h"
#include "PvXMLParser.h"

#include <QStringList>

#include <algorithm>
#include <tuple>

namespace {
// The house background of pages whose default names none.
const char* const houseBackground = "201";
}

PvDefaultTemplateMap::PvDefaultTemplateMap(const QDomElement& defaults)
{
    applyDefaultsNode(defaults);
}

void PvDefaultTemplateMap::applyDefaultsNode(const QDomElement& defaults)
{
    const QString tag = QStringLiteral("default");
    for (QDomElement entry = defaults.firstChildElement(tag); !entry.isNull(); entry = entry.nextSiblingElement(tag))
        applyDefault(entry);
}

void PvDefaultTemplateMap::applyDefault(const QDomElement& entry)
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

    for (const PvPageType& pageType : pageTypes) {
        for (const PvPageAlignmentEnum alignment : alignments) {
            const PvPageContext context(pageType, alignment);
            m_templates.insert({ PvDefaultTemplateKey(context, PvDefaultTemplateTypeLayout, pageNumber, scenePageCount) }, layout);
            m_templates.insert({ PvDefaultTemplateKey(context, PvDefaultTemplateTypeBackground, pageNumber, scenePageCount) }, background);
            m_templates.insert({ PvDefaultTemplateKey(context, PvDefaultTemplateTypeDesign, pageNumber, scenePageCount) }, design);
        }
    }
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
