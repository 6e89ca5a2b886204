#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>
#include <QStringTokenizer>
#include <QStringView>
#include <QVarLengthArray>

#include <initializer_list>
#include <optional>
#include <utility>
#include <type_traits>

// Qt 6.4 hashes enumerations only through their underlying type.
#if QT_VERSION < QT_VERSION_CHECK(6, 5, 0)
template <typename E, std::enable_if_t<std::is_enum_v<E>, bool> = true>
inline size_t qHash(E e, size_t seed = 0) noexcept
{
    return qHash(static_cast<std::underlying_type_t<E>>(e), seed);
}
#endif

/*!
 * The single flag bits of an enumeration value, lowest first. The loop runs while the rest,
 * read as a signed number of the enumeration's width, is positive: a value with the top bit
 * set is negative and so yields no bits at all. Callers rely on that.
 */
template <typename T>
QList<T> pvSplitEnumToBits(T value)
{
    using Unsigned = std::make_unsigned_t<std::underlying_type_t<T>>;
    using Signed = std::make_signed_t<Unsigned>;
    QList<T> bits;
    Unsigned remaining = static_cast<Unsigned>(value);
    for (Unsigned bit = 1; static_cast<Signed>(remaining) > 0; bit <<= 1) {
        if (remaining & bit) {
            bits.append(static_cast<T>(bit));
            remaining &= ~bit;
        }
    }
    return bits;
}

//! The bits pvSplitEnumToBits() names, as one value: \a value itself, or 0 when it is negative.
template <typename T>
constexpr std::underlying_type_t<T> pvSplitBitsMask(T value)
{
    using Unsigned = std::make_unsigned_t<std::underlying_type_t<T>>;
    using Signed = std::make_signed_t<Unsigned>;
    return static_cast<Signed>(static_cast<Unsigned>(value)) > 0 ? static_cast<std::underlying_type_t<T>>(value) : 0;
}

/*!
 * The texts of one enumeration: built once per enumeration by its wrapper's fillTable() and
 * shared for the life of the process. Decoding ignores case and surrounding blanks; encoding
 * gives the first text inserted for a value.
 */
template <typename T>
class PvEnumToStringTable
{
public:
    //! The enumeration's underlying integer type.
    using Underlying = std::underlying_type_t<T>;

    //! Adds \a text for \a value; the first text of a value is the one written.
    void insert(const QString& text, T value)
    {
        stringToEnum.insert(text.toLower(), value);
        if (!enumToString.contains(value))
            enumToString.insert(value, text);
    }

    //! Inserts the rows in order; fillTable() implementations are lists of these.
    void insertAll(std::initializer_list<std::pair<const char*, T>> rows)
    {
        for (const auto& [text, value] : rows)
            insert(QString::fromUtf8(text), value);
    }

    //! The value of \a text, ignoring case and surrounding blanks; none for an unknown text.
    [[nodiscard]] std::optional<T> decode(QStringView text) const
    {
        if (!text.isEmpty() && (text.front().isSpace() || text.back().isSpace()))
            text = text.trimmed();
        // Product files hold thousands of these names: lower-case short ASCII names on the
        // stack, and copy only what needs Unicode case folding.
        constexpr qsizetype shortName = 64;
        char16_t folded[shortName];
        bool ascii = text.size() <= shortName;
        for (qsizetype i = 0; ascii && i < text.size(); ++i) {
            const char16_t c = text[i].unicode();
            ascii = c < 0x80;
            folded[i] = c >= u'A' && c <= u'Z' ? char16_t(c + (u'a' - u'A')) : c;
        }
        const QString key = ascii ? QString::fromRawData(reinterpret_cast<const QChar*>(folded), text.size()) : text.toString().toLower();
        const auto it = stringToEnum.constFind(key);
        if (it == stringToEnum.cend())
            return std::nullopt;
        return *it;
    }

    // Empty pieces are kept: they decode to unknownValue like any unknown text.
    //! The values of the comma-separated \a text OR-ed together; an unknown part gives unknownValue.
    [[nodiscard]] T decodeCSV(QStringView text) const
    {
        Underlying result = 0;
        qsizetype start = 0;
        for (qsizetype end = 0; end <= text.size(); ++end) {
            if (end < text.size() && text[end] != u',')
                continue;
            result |= static_cast<Underlying>(decode(text.sliced(start, end - start)).value_or(unknownValue));
            start = end + 1;
        }
        return static_cast<T>(result);
    }

    //! The texts of the single bits of \a value, lowest first; unknownString for a bit without text.
    [[nodiscard]] QStringList encodeAsList(T value) const
    {
        QStringList texts;
        for (T bit : pvSplitEnumToBits(value))
            texts.append(enumToString.value(bit, unknownString));
        return texts;
    }

    //! encodeAsList() joined by ", "; unknownString for 0.
    [[nodiscard]] QString encodeCSV(T value) const
    {
        const QStringList texts = encodeAsList(value);
        return texts.isEmpty() ? unknownString : texts.join(QStringLiteral(", "));
    }

    //! From lower-case text to value.
    QHash<QString, T> stringToEnum;
    //! From value to its written text.
    QHash<T, QString> enumToString;
    //! Written for a bit without text, and for 0.
    QString unknownString;
    //! Decoded from an unknown text.
    T unknownValue = static_cast<T>(0);
};
