#pragma once

#include "PvEnumWrapper.h"

#include <QList>
#include <QSet>

#include <algorithm>
#include <type_traits>

//! True for the value classes derived from PvEnumWrapper.
template <typename U, typename = void>
struct PvIsEnumWrapper : std::false_type
{
};

template <typename U>
struct PvIsEnumWrapper<U, std::void_t<typename U::Enum>> : std::is_base_of<PvEnumWrapper<typename U::Enum>, U>
{
};

/*!
 * A set used as a filter in which the empty set stands for all values. Holding enumeration
 * wrappers, each element is one flag bit: extendTo() splits combined values. Any hashable
 * value works as a plain filter through sharesKey(). Implicitly shared, like the QSet it is.
 */
template <typename T>
class PvEmptyMeansAllSet : public QSet<T>
{
    template <typename U>
    using IfEnumWrapper = std::enable_if_t<PvIsEnumWrapper<U>::value, bool>;

public:
    using QSet<T>::QSet;
    PvEmptyMeansAllSet() = default;
    //! The set of the elements of \a other; empty means all.
    PvEmptyMeansAllSet(const QSet<T>& other) : QSet<T>(other) { }

    //! One element per flag bit of \a value; none for 0 or for a value with the top bit set.
    template <typename U = T, IfEnumWrapper<U> = true>
    [[nodiscard]] static PvEmptyMeansAllSet decompose(const U& value)
    {
        PvEmptyMeansAllSet result;
        for (const typename U::Enum bit : value.splitToBits())
            result.insert(U(bit));
        return result;
    }

    //! Adds the bits of \a value; extending by 0 keeps an empty set meaning all.
    template <typename U = T, IfEnumWrapper<U> = true>
    void extendTo(const U& value)
    {
        this->unite(decompose(value));
    }

    //! The elements in rising order of their value, for stable output.
    template <typename U = T, IfEnumWrapper<U> = true>
    [[nodiscard]] QList<U> sortedByValue() const
    {
        QList<U> values(this->cbegin(), this->cend());
        std::sort(values.begin(), values.end(),
                  [](const U& a, const U& b) { return a.toUnderlying() < b.toUnderlying(); });
        return values;
    }

    /*!
     * Whether both sets name a common element. Only real keys count: an empty set, although
     * it means all, shares nothing.
     */
    [[nodiscard]] bool sharesRealKeysWith(const QSet<T>& other) const
    {
        if (this->isEmpty() || other.isEmpty())
            return false;
        return std::any_of(other.cbegin(), other.cend(), [this](const T& value) { return this->contains(value); });
    }

    //! Whether the filter accepts \a value: always when empty, else when it holds that very value.
    [[nodiscard]] bool sharesKey(const T& value) const { return this->isEmpty() || this->contains(value); }
};
