#pragma once

#include "PvEnumToStringTable.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDebugStateSaver>
#include <QMutex>
#include <QMutexLocker>
#include <QSet>

#include <atomic>
#include <utility>

/*!
 * Base of every enumerated value of product files: a bit set of the flag enumeration T with
 * its texts in a table that the derived class fills once per enumeration. Values compare as
 * signed numbers of the enumeration's width.
 */
template <typename T>
class PvEnumWrapper
{
public:
    using Enum = T;
    using Underlying = std::underlying_type_t<T>;
    using Signed = std::make_signed_t<Underlying>;
    using Table = PvEnumToStringTable<T>;

    PvEnumWrapper(T value = static_cast<T>(0)) noexcept : m_value(value) { }
    PvEnumWrapper(const PvEnumWrapper&) = default;
    PvEnumWrapper(PvEnumWrapper&&) noexcept = default;
    PvEnumWrapper& operator=(const PvEnumWrapper&) = default;
    PvEnumWrapper& operator=(PvEnumWrapper&&) noexcept = default;
    virtual ~PvEnumWrapper() = default;

    virtual bool operator<(const PvEnumWrapper& other) const { return asSigned() < other.asSigned(); }
    virtual bool operator<=(const PvEnumWrapper& other) const { return asSigned() <= other.asSigned(); }
    virtual bool operator>(const PvEnumWrapper& other) const { return asSigned() > other.asSigned(); }
    virtual bool operator==(const PvEnumWrapper& other) const { return m_value == other.m_value; }
    virtual bool operator==(T value) const { return m_value == value; }
    virtual bool operator!=(const PvEnumWrapper& other) const { return m_value != other.m_value; }
    virtual bool operator!=(T value) const { return m_value != value; }
    virtual PvEnumWrapper& operator|=(const PvEnumWrapper& other) { return *this |= other.m_value; }
    virtual PvEnumWrapper& operator|=(T value)
    {
        m_value = static_cast<T>(static_cast<Underlying>(m_value) | static_cast<Underlying>(value));
        return *this;
    }
    virtual PvEnumWrapper& operator&=(const PvEnumWrapper& other) { return *this &= other.m_value; }
    virtual PvEnumWrapper& operator&=(T value)
    {
        m_value = reducedTo(value);
        return *this;
    }
    virtual T operator&(const PvEnumWrapper& other) const { return reducedTo(other.m_value); }
    virtual T operator|(const PvEnumWrapper& other) const
    {
        return static_cast<T>(static_cast<Underlying>(m_value) | static_cast<Underlying>(other.m_value));
    }
    virtual T reducedTo(T mask) const
    {
        return static_cast<T>(static_cast<Underlying>(m_value) & static_cast<Underlying>(mask));
    }
    virtual bool isValid() const { return static_cast<Underlying>(m_value) != 0; }

    [[nodiscard]] T value() const noexcept { return m_value; }
    [[nodiscard]] Underlying toUnderlying() const noexcept { return static_cast<Underlying>(m_value); }
    [[nodiscard]] bool hasAnyOf(Underlying mask) const noexcept { return (toUnderlying() & mask) != 0; }

    /*!
     * The shared table of the enumeration, filled by the fillTable() of the first object that
     * asks. Later calls read the published pointer without locking.
     */
    Table* enumToStringTable() const
    {
        static std::atomic<Table*> myTable { nullptr };
        if (Table* table = myTable.load(std::memory_order_acquire))
            return table;
        static QMutex theMutex;
        QMutexLocker locker(&theMutex);
        // Acquire rather than relaxed: ThreadSanitizer cannot see the ordering of the Qt mutex.
        Table* table = myTable.load(std::memory_order_acquire);
        if (!table) {
            auto* fresh = new Table; // never freed: values may outlive any owner
            try {
                fillTable(fresh);
            } catch (...) {
                delete fresh;
                throw;
            }
            table = fresh;
            myTable.store(table, std::memory_order_release);
        }
        return table;
    }

    [[nodiscard]] QSet<T> splitToBits() const
    {
        enumToStringTable();
        const QList<T> bits = pvSplitEnumToBits(m_value);
        return QSet<T>(bits.cbegin(), bits.cend());
    }
    [[nodiscard]] QList<T> splitToBitsSorted() const
    {
        enumToStringTable();
        return pvSplitEnumToBits(m_value);
    }
    [[nodiscard]] QStringList encodeAsList() const { return enumToStringTable()->encodeAsList(m_value); }
    [[nodiscard]] QString encodeCSV() const { return enumToStringTable()->encodeCSV(m_value); }

protected:
    virtual void fillTable(Table* table) const = 0;

    // For the text constructors of derived classes, which run after the vtable is theirs.
    void setFromText(const QString& text) { m_value = enumToStringTable()->decodeCSV(text); }
    Signed asSigned() const noexcept { return static_cast<Signed>(static_cast<Underlying>(m_value)); }

    T m_value;
};

template <typename T>
inline size_t qHash(const PvEnumWrapper<T>& wrapper, size_t seed = 0) noexcept
{
    return qHash(wrapper.toUnderlying(), seed);
}

template <typename T>
inline QDebug operator<<(QDebug debug, const PvEnumWrapper<T>& wrapper)
{
    const QDebugStateSaver saver(debug);
    debug.nospace() << wrapper.encodeCSV() << '(' << Qt::hex << Qt::showbase << wrapper.toUnderlying() << ')';
    return debug;
}

/*!
 * The text of the row whose value is exactly \a value, translated in \a context; empty when
 * no row has it. For display names of single values; combinations have none.
 */
template <typename T, std::size_t N>
QString pvTranslatedText(const char* context, const std::pair<T, const char*> (&rows)[N], T value)
{
    for (const auto& [rowValue, text] : rows) {
        if (rowValue == value)
            return QCoreApplication::translate(context, text);
    }
    return {};
}
