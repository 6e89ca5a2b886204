#pragma once

#include "PvDefaultTemplateKey.h"
#include "pvproductproperties_export.h"

#include <QDomElement>
#include <QHash>
#include <QList>
#include <QString>

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
    [[nodiscard]] qsizetype size() const { return m_templates.size(); }
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
    bool applyDefault(const QDomElement& entry);
    bool store(const PvDefaultTemplateKey& key, const QString& name);

    // Stored under a hash of every field: the key's own hash leaves out page number and scene
    // page count, so a file with many numbered pages would put them all in one bucket and
    // make reading it quadratic.
    struct StoredKey
    {
        PvDefaultTemplateKey key;
        friend bool operator==(const StoredKey& a, const StoredKey& b) { return a.key == b.key; }
        friend size_t qHash(const StoredKey& stored, size_t seed) noexcept
        {
            return qHashMulti(seed, qHash(stored.key), stored.key.pageNumber(), stored.key.scenePageCount());
        }
    };

    QHash<StoredKey, QString> m_templates;
};
