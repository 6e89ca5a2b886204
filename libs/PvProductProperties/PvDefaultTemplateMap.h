#pragma once

#include "PvDefaultTemplateKey.h"
#include "PvPageType.h"
#include "pvproductproperties_export.h"

#include <QDomElement>
#include <QHash>
#include <QList>
#include <QString>
#include <QVarLengthArray>

/*!
 * The layouts, backgrounds and designs a product uses by default for its pages, read from
 * the "default" children of its "defaults" element. Names are kept with umlauts folded.
 */
class PVPRODUCTPROPERTIES_EXPORT PvDefaultTemplateMap
{
public:
    PvDefaultTemplateMap() = default;
    //! The entries of the "default" children of \a defaults.
    explicit PvDefaultTemplateMap(const QDomElement& defaults);

    /*!
     * Adds the entries of \a defaults; a later entry replaces an earlier one of equal key.
     * New keys beyond 20000 entries are skipped, with a warning in "pv.productproperties".
     */
    void applyDefaultsNode(const QDomElement& defaults);

    /*!
     * The most specific non-empty name for \a key: the entry of its page and scene page count,
     * then that of its scene page count for any page, then the general one (possibly empty).
     */
    [[nodiscard]] QString findTemplate(const PvDefaultTemplateKey& key) const;
    //! The number of entries.
    [[nodiscard]] qsizetype size() const;
    //! One entry: the key it is stored under and its template name.
    struct Entry
    {
        PvDefaultTemplateKey key; //!< Page type, alignment, template type, page number and scene page count.
        QString name; //!< The template's name, umlauts folded.
    };
    //! Every entry, sorted by page type, alignment, template type, scene page count and page number.
    [[nodiscard]] QList<Entry> entries() const;

    //! Folds ä, ö, ü and ß, in either case, to "ae", "oe", "ue" and "ss".
    [[nodiscard]] static QString removeUmlauts(const QString& text);

private:
    // One "default" element as written. It stands for a template of each kind for every
    // page type and alignment it names; kept as written because expanding it costs a hash
    // entry per page type, alignment and kind, five times the file's own size in memory.
    struct Rule
    {
        QVarLengthArray<PvPageTypeEnum, 4> pageTypes; // as listed; a few, so kept inline
        quint32 alignments = 0; // the single alignment bits it names
        int pageNumber = -1;
        int scenePageCount = -1;
        QString names[3]; // by PvDefaultTemplateType
        [[nodiscard]] bool covers(const PvDefaultTemplateKey& key) const;
        [[nodiscard]] qsizetype entryCount() const;
    };
    struct StoredKey
    {
        PvDefaultTemplateKey key;
        friend bool operator==(const StoredKey& a, const StoredKey& b) { return a.key == b.key; }
        friend size_t qHash(const StoredKey& stored, size_t seed) noexcept
        {
            return qHashMulti(seed, qHash(stored.key), stored.key.pageNumber(), stored.key.scenePageCount());
        }
    };
    template <typename Store>
    static bool forEachEntry(const Rule& rule, Store&& store);

    bool applyDefault(const QDomElement& entry);
    [[nodiscard]] QHash<StoredKey, QString> expanded() const;
    bool store(const PvDefaultTemplateKey& key, const QString& name);
    [[nodiscard]] QString value(const PvDefaultTemplateKey& key) const;

    QList<Rule> m_rules;
    qsizetype m_ruleEntries = 0; // entries of m_rules, repeated keys counted again
    // Only once the rules could make more entries than the bound allows: the entries as the
    // bound lets them in, key by key, and no rules any more.
    QHash<StoredKey, QString> m_templates;
    bool m_expanded = false;
};
