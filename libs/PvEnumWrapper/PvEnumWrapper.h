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
    //! The flag enumeration.
    using Enum = T;
    //! Its underlying integer type.
    using Underlying = std::underlying_type_t<T>;
    //! The signed integer of the same width, by which values compare.
    using Signed = std::make_signed_t<Underlying>;
    //! The enumeration's table of texts.
    using Table = PvEnumToStringTable<T>;

    //! The value \a value; 0 by default.
    PvEnumWrapper(T value = static_cast<T>(0)) noexcept : m_value(value) { }
    //! A copy of the bits.
    PvEnumWrapper(const PvEnumWrapper&) = default;
    //! Takes the bits.
    PvEnumWrapper(PvEnumWrapper&&) noexcept = default;
    //! Copies the bits.
    PvEnumWrapper& operator=(const PvEnumWrapper&) = default;
    //! Takes the bits.
    PvEnumWrapper& operator=(PvEnumWrapper&&) noexcept = default;
    virtual ~PvEnumWrapper() = default;

    //! Compares as signed numbers of the enumeration's width.
    virtual bool operator<(const PvEnumWrapper& other) const { return asSigned() < other.asSigned(); }
    //! Compares as signed numbers of the enumeration's width.
    virtual bool operator<=(const PvEnumWrapper& other) const { return asSigned() <= other.asSigned(); }
    //! Compares as signed numbers of the enumeration's width.
    virtual bool operator>(const PvEnumWrapper& other) const { return asSigned() > other.asSigned(); }
    //! The same bits.
    virtual bool operator==(const PvEnumWrapper& other) const { return m_value == other.m_value; }
    //! Exactly the bits of \a value.
    virtual bool operator==(T value) const { return m_value == value; }
    //! Different bits.
    virtual bool operator!=(const PvEnumWrapper& other) const { return m_value != other.m_value; }
    //! Not exactly the bits of \a value.
    virtual bool operator!=(T value) const { return m_value != value; }
    //! Adds the bits of \a other.
    virtual PvEnumWrapper& operator|=(const PvEnumWrapper& other) { return *this |= other.m_value; }
    //! Adds the bits of \a value.
    virtual PvEnumWrapper& operator|=(T value)
    {
        m_value = static_cast<T>(static_cast<Underlying>(m_value) | static_cast<Underlying>(value));
        return *this;
    }
    //! Keeps only the bits shared with \a other.
    virtual PvEnumWrapper& operator&=(const PvEnumWrapper& other) { return *this &= other.m_value; }
    //! Keeps only the bits shared with \a value.
    virtual PvEnumWrapper& operator&=(T value)
    {
        m_value = reducedTo(value);
        return *this;
    }
    //! The bits shared with \a other.
    virtual T operator&(const PvEnumWrapper& other) const { return reducedTo(other.m_value); }
    //! The bits of both.
    virtual T operator|(const PvEnumWrapper& other) const
    {
        return static_cast<T>(static_cast<Underlying>(m_value) | static_cast<Underlying>(other.m_value));
    }
    //! The bits shared with \a mask.
    virtual T reducedTo(T mask) const
    {
        return static_cast<T>(static_cast<Underlying>(m_value) & static_cast<Underlying>(mask));
    }
    //! Whether any bit is set.
    virtual bool isValid() const { return static_cast<Underlying>(m_value) != 0; }

    //! The enumeration value.
    [[nodiscard]] T value() const noexcept { return m_value; }
    //! The value as its underlying integer.
    [[nodiscard]] Underlying toUnderlying() const noexcept { return static_cast<Underlying>(m_value); }
    //! Whether any bit of \a mask is set.
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

    //! The single bits of the value.
    [[nodiscard]] QSet<T> splitToBits() const
    {
        enumToStringTable();
        const QList<T> bits = pvSplitEnumToBits(m_value);
        return QSet<T>(bits.cbegin(), bits.cend());
    }
    //! The single bits of the value, lowest first.
    [[nodiscard]] QList<T> splitToBitsSorted() const
    {
        enumToStringTable();
        return pvSplitEnumToBits(m_value);
    }
    //! The texts of the single bits, lowest first.
    [[nodiscard]] QStringList encodeAsList() const { return enumToStringTable()->encodeAsList(m_value); }
    //! The texts of the single bits joined by ", ".
    [[nodiscard]] QString encodeCSV() const { return enumToStringTable()->encodeCSV(m_value); }

protected:
    //! Fills \a table with the enumeration's texts; called once per enumeration.
    virtual void fillTable(Table* table) const = 0;

    // For the text constructors of derived classes, which run after the vtable is theirs.
    //! Decodes \a text as a comma-separated list of names.
    void setFromText(const QString& text) { m_value = enumToStringTable()->decodeCSV(text); }
    //! The value as a signed number of the enumeration's width.
    Signed asSigned() const noexcept { return static_cast<Signed>(static_cast<Underlying>(m_value)); }

    //! The bits.
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
