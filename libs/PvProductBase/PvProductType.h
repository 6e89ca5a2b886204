#pragma once

#include "pvproductbase_export.h"

#include <QHashFunctions>
#include <QString>

class QDebug;

/*! The name of an orderable product type; the key of product descriptions. */
class PVPRODUCTBASE_EXPORT PvProductType
{
public:
    PvProductType() = default;
    explicit PvProductType(const QString& name) : m_name(name) { }

    [[nodiscard]] QString name() const { return m_name; }
    [[nodiscard]] bool isValid() const { return !m_name.isEmpty(); }

    friend bool operator==(const PvProductType& a, const PvProductType& b) { return a.m_name == b.m_name; }
    friend bool operator!=(const PvProductType& a, const PvProductType& b) { return a.m_name != b.m_name; }
    friend bool operator<(const PvProductType& a, const PvProductType& b) { return a.m_name < b.m_name; }

private:
    QString m_name;
};

inline size_t qHash(const PvProductType& type, size_t seed = 0) noexcept
{
    return qHash(type.name(), seed);
}

PVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const PvProductType& type);
