#include "PvDefaultTemplateMap.h"

#include "PvEnumAttribute.h"
#include "PvProductDiagnostics.h"

#include "PvPageTypeList.h"
#include "PvProductPropertiesLogging.h"
#include "PvValuePool.h"
#include "PvXMLAttribute.h"
#include "PvXMLParser.h"
#include "PvXMLChildElements.h"

#include <QStringList>
#include <QStringTokenizer>
#include <QVarLengthArray>
#include <QtAlgorithms>

#include <algorithm>
#include <tuple>

namespace {
// The house background of pages whose default names none.
QString houseBackground()
{
    return QStringLiteral("201");
}
// A template name as a rule keeps it: the house background, named by most rules, as the one
// text of it, the others shared with equal names of the load.
QString keptName(const QString& name)
{
    static const QString house = houseBackground();
    return name == house ? house : PvValuePool::shared(PvDefaultTemplateMap::removeUmlauts(name));
}

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
    for (const QDomElement entry : PvXMLChildElements(defaults, tag)) {
        if (!applyDefault(entry) && firstSkipped.isNull())
            firstSkipped = entry;
    }
    m_rules.squeeze();
    if (firstSkipped.isNull())
        return;
    qCWarning(lcProductProperties, "Default templates beyond %lld entries skipped", qlonglong(maximumEntries));
    if (PvProductDiagnostics::listening()) {
        PvProductDiagnostics::report(PvDiagnostic::Error, firstSkipped,
                                     QStringLiteral("more than %1 default templates; this one and those after it are skipped").arg(maximumEntries));
    }
}

bool PvDefaultTemplateMap::Rule::covers(const PvDefaultTemplateKey& key) const
{
    const quint32 alignment = key.pageAlignment().toUnderlying();
    const int type = key.defaultTemplateType();
    return type >= PvDefaultTemplateTypeLayout && type <= PvDefaultTemplateTypeDesign && key.pageNumber() == pageNumber
        && key.scenePageCount() == scenePageCount && (alignments & alignment) != 0 && (alignment & (alignment - 1)) == 0
        && pageTypes.contains(key.pageType().value());
}

qsizetype PvDefaultTemplateMap::Rule::entryCount() const
{
    return pageTypes.size() * qPopulationCount(alignments) * 3;
}

template <typename Store>
bool PvDefaultTemplateMap::forEachEntry(const Rule& rule, Store&& store)
{
    bool complete = true;
    const QList<PvPageAlignmentEnum> alignments = pvSplitEnumToBits(PvPageAlignmentEnum(rule.alignments));
    for (const PvPageTypeEnum pageType : rule.pageTypes) {
        for (const PvPageAlignmentEnum alignment : alignments) {
            const PvPageContext context(pageType, alignment);
            for (const auto type : { PvDefaultTemplateTypeLayout, PvDefaultTemplateTypeBackground, PvDefaultTemplateTypeDesign })
                complete &= store(PvDefaultTemplateKey(context, type, rule.pageNumber, rule.scenePageCount), rule.names[type]);
        }
    }
    return complete;
}

QHash<PvDefaultTemplateMap::StoredKey, QString> PvDefaultTemplateMap::expanded() const
{
    if (m_expanded)
        return m_templates;
    QHash<StoredKey, QString> entries;
    for (const Rule& rule : m_rules) {
        forEachEntry(rule, [&entries](const PvDefaultTemplateKey& key, const QString& name) {
            entries.insert({ key }, name);
            return true;
        });
    }
    return entries;
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
    // A default has a few of these; once all it has are found the others are known to be missing.
    PvXMLAttributes attributes(entry);
    Rule rule;
    for (const PvPageType& pageType : PvPageTypeList(PvXMLParser::attribute(attributes, QStringLiteral("pageType"))))
        rule.pageTypes.append(pageType.value());
    if (PvProductDiagnostics::listening() && !entry.hasAttribute(QStringLiteral("pageType")))
        PvProductDiagnostics::report(PvDiagnostic::Error, entry, QStringLiteral("a \"default\" without \"pageType\" applies to no page"));
    PvProductDiagnostics::checkEnum<PvPageType>(entry, QStringLiteral("pageType"), "page type");
    PvProductDiagnostics::checkEnum<PvPageAlignment>(entry, QStringLiteral("alignment"), "alignment");
    const PvPageAlignment alignments = pvEnumAttribute(attributes, QStringLiteral("alignment"), pvEveryAlignment());
    rule.alignments = pvSplitBitsMask(alignments.value());

    QString layoutDefault;
    QString backgroundDefault = houseBackground();
    if (const std::optional<QString> templates = attributes.take(QStringLiteral("templates"))) {
        QVarLengthArray<QStringView, 4> parts;
        for (const QStringView part : QStringView(*templates).tokenize(u',', Qt::SkipEmptyParts))
            parts.append(part);
        if (parts.size() == 2)
            layoutDefault = parts.at(1).toString();
        if (!parts.isEmpty())
            backgroundDefault = parts.first().toString();
    }
    rule.names[PvDefaultTemplateTypeLayout] = keptName(PvXMLParser::attribute(attributes, QStringLiteral("layout"), layoutDefault).trimmed());
    rule.names[PvDefaultTemplateTypeBackground] = keptName(PvXMLParser::attribute(attributes, QStringLiteral("background"), backgroundDefault).trimmed());
    rule.names[PvDefaultTemplateTypeDesign] = keptName(PvXMLParser::attribute(attributes, QStringLiteral("design")));
    rule.pageNumber = PvXMLParser::intAttribute(attributes, QStringLiteral("pageNr"), -1);
    rule.scenePageCount = PvXMLParser::intAttribute(attributes, QStringLiteral("scenePageCount"), -1);

    const qsizetype entries = rule.entryCount();
    if (entries == 0)
        return true;
    if (!m_expanded && m_ruleEntries + entries <= maximumEntries) {
        m_ruleEntries += entries;
        m_rules.append(std::move(rule));
        return true;
    }
    // From here on the bound decides key by key which entries get in.
    if (!m_expanded) {
        m_templates = expanded();
        m_rules.clear();
        m_expanded = true;
    }
    return forEachEntry(rule, [this](const PvDefaultTemplateKey& key, const QString& name) { return store(key, name); });
}

QString PvDefaultTemplateMap::value(const PvDefaultTemplateKey& key) const
{
    if (m_expanded)
        return m_templates.value({ key });
    // The last rule naming the key wins, as a later entry replaces an earlier one.
    for (auto rule = m_rules.crbegin(); rule != m_rules.crend(); ++rule) {
        if (rule->covers(key))
            return rule->names[key.defaultTemplateType()];
    }
    return QString();
}

qsizetype PvDefaultTemplateMap::size() const
{
    return expanded().size();
}

QString PvDefaultTemplateMap::findTemplate(const PvDefaultTemplateKey& key) const
{
    const QString exact = value(key);
    if (!exact.isEmpty())
        return exact;
    if (key.scenePageCount() != -1) {
        const QString forScene = value(key.generalized(key.scenePageCount()));
        if (!forScene.isEmpty())
            return forScene;
    }
    return value(key.generalized(-1));
}

QString PvDefaultTemplateMap::removeUmlauts(const QString& text)
{
    // Most names are plain ASCII, in which none of the letters can occur.
    if (std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c.unicode() < 0x80; }))
        return text;
    QString folded = text;
    folded.replace(QStringLiteral(u"ä"), QStringLiteral("ae"), Qt::CaseInsensitive);
    folded.replace(QStringLiteral(u"ö"), QStringLiteral("oe"), Qt::CaseInsensitive);
    folded.replace(QStringLiteral(u"ü"), QStringLiteral("ue"), Qt::CaseInsensitive);
    folded.replace(QStringLiteral(u"ß"), QStringLiteral("ss"), Qt::CaseInsensitive);
    return folded;
}

QList<PvDefaultTemplateMap::Entry> PvDefaultTemplateMap::entries() const
{
    const QHash<StoredKey, QString> templates = expanded();
    QList<Entry> list;
    list.reserve(templates.size());
    for (auto it = templates.cbegin(); it != templates.cend(); ++it)
        list.append(Entry { it.key().key, it.value() });
    // A hash has no order of its own: sort so that listings compare between runs.
    const auto fields = [](const PvDefaultTemplateKey& key) {
        return std::make_tuple(key.pageType().toUnderlying(), key.pageAlignment().toUnderlying(), int(key.defaultTemplateType()),
                               key.scenePageCount(), key.pageNumber());
    };
    std::sort(list.begin(), list.end(), [&fields](const Entry& a, const Entry& b) { return fields(a.key) < fields(b.key); });
    return list;
}
