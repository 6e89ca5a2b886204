#pragma once

#include <QMap>

/*! An ordered map that answers a default value for absent keys. */
template <typename K, typename V>
class PvLookUpTable
{
public:
    explicit PvLookUpTable(const V& defaultValue = V()) : m_default(defaultValue) { }

    void insert(const K& key, const V& value) { m_map.insert(key, value); }
    [[nodiscard]] V value(const K& key) const { return m_map.value(key, m_default); }
    [[nodiscard]] bool contains(const K& key) const { return m_map.contains(key); }
    [[nodiscard]] bool isEmpty() const { return m_map.isEmpty(); }
    [[nodiscard]] qsizetype size() const { return m_map.size(); }
    [[nodiscard]] V defaultValue() const { return m_default; }
    void setDefaultValue(const V& value) { m_default = value; }

private:
    QMap<K, V> m_map;
    V m_default;
};
