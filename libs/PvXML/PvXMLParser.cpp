#include "PvXMLParser.h"

#include "PvDiagnostics.h"
#include "PvXMLAttribute.h"
#include "PvXMLChildElements.h"

#include <QStringTokenizer>
#include <QStringView>

#include <algorithm>
#include <array>
#include <climits>
#include <cmath>

namespace {
// The typed readers fall back to their default; this says so where someone listens.
void reportDefault(const QDomElement& element, const QString& name, const QString& expected)
{
    if (PvDiagnostics::isListening(pvXmlLog()))
        PvDiagnostics::report(pvXmlLog(), PvDiagnostic::Error, element,
                              QStringLiteral("attribute %1: %2 is not %3; the default is used")
                                  .arg(PvDiagnostics::quoted(name), PvDiagnostics::quoted(element.attribute(name)), expected),
                              name);
}

// Numbers in product files are short and plain: "42", "-3", "3.5". Those are read here, to
// the same double as toDouble() would give, and everything else by toDouble() or toInt().
// Exact because both the digits (below 10^15) and the power of ten are doubles without
// rounding, so their quotient is the correctly rounded value, as toDouble()'s is.
std::optional<double> plainNumber(QStringView text, bool allowFraction)
{
    static constexpr double powersOfTen[] = { 1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15 };
    const bool negative = text.startsWith(u'-');
    const QStringView digits = negative || text.startsWith(u'+') ? text.mid(1) : text;
    qint64 value = 0;
    int count = 0;
    int decimals = -1;
    for (const QChar c : digits) {
        if (c == u'.' && allowFraction && decimals < 0 && count > 0) {
            decimals = 0;
            continue;
        }
        if (c < u'0' || c > u'9' || ++count > 15)
            return std::nullopt;
        value = value * 10 + (c.unicode() - u'0');
        if (decimals >= 0)
            ++decimals;
    }
    if (count == 0 || decimals == 0)
        return std::nullopt;
    const double magnitude = decimals > 0 ? double(value) / powersOfTen[decimals] : double(value);
    return negative ? -magnitude : magnitude;
}

// Whether \a text lower-cased is \a word, a lower-case ASCII word, without a copy. Beyond
// ASCII only the Kelvin sign lower-cases into ASCII, to "k", which none of the words hold.
bool lowerCaseEquals(QStringView text, QLatin1String word)
{
    if (text.size() != word.size())
        return false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t c = text.at(i).unicode();
        if (c >= 0x80 || (c >= u'A' && c <= u'Z' ? char(c - u'A' + 'a') : char(c)) != word.at(i))
            return false;
    }
    return true;
}

// The readers below take the attribute's text, looked up by the caller one way or another,
// and the element and name only to say what was wrong with it.
std::optional<double> doubleOf(const QDomElement& element, const QString& name, const std::optional<QString>& text)
{
    if (!text)
        return std::nullopt;
    const QStringView trimmed = QStringView(*text).trimmed();
    if (const std::optional<double> plain = plainNumber(trimmed, true))
        return plain;
    bool ok = false;
    const double value = trimmed.toDouble(&ok);
    if (!ok)
        reportDefault(element, name, QStringLiteral("a number"));
    return ok ? std::optional<double>(value) : std::nullopt;
}

std::optional<double> doubleOf(const QDomElement& element, const QString& name)
{
    return doubleOf(element, name, PvXMLAttribute::value(element, name));
}

// Product files are data from outside: a coordinate beyond int or not finite must not overflow.
int clampedRound(double value)
{
    if (!std::isfinite(value))
        return 0;
    return qRound(std::clamp(value, double(INT_MIN), double(INT_MAX)));
}

// Coordinates read together: the caller's default when none is there, else 0 for a missing one.
template <std::size_t N>
class Coordinates
{
public:
    template <typename Lookup>
    Coordinates(const QDomElement& element, const std::array<QString, N>& names, Lookup lookup)
        : m_element(element)
        , m_names(names)
    {
        for (std::size_t i = 0; i < N; ++i) {
            m_texts[i] = lookup(names[i]);
            m_any = m_any || m_texts[i].has_value();
        }
    }
    [[nodiscard]] bool any() const { return m_any; }
    [[nodiscard]] double at(std::size_t i) const { return doubleOf(m_element, m_names[i], m_texts[i]).value_or(0.0); }
    [[nodiscard]] int intAt(std::size_t i) const { return clampedRound(at(i)); }

private:
    const QDomElement& m_element;
    const std::array<QString, N>& m_names;
    std::array<std::optional<QString>, N> m_texts;
    bool m_any = false;
};

const std::array<QString, 4>& rectNames()
{
    static const std::array<QString, 4> names { QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("width"), QStringLiteral("height") };
    return names;
}

auto lookupIn(const QDomElement& element)
{
    return [&element](const QString& name) { return PvXMLAttribute::value(element, name); };
}

auto takeFrom(PvXMLAttributes& attributes)
{
    return [&attributes](const QString& name) { return attributes.take(name); };
}

QString textOf(const std::optional<QString>& text, const QString& defaultValue, bool trim)
{
    if (!text)
        return defaultValue;
    return trim ? text->trimmed() : *text;
}

bool boolOf(const QDomElement& element, const QString& name, const std::optional<QString>& value, bool defaultValue)
{
    if (!value)
        return defaultValue;
    const QStringView text = QStringView(*value).trimmed();
    const auto is = [text](QLatin1String word) { return lowerCaseEquals(text, word); };
    if (is(QLatin1String("true")) || is(QLatin1String("1")) || is(QLatin1String("yes")))
        return true;
    if (is(QLatin1String("false")) || is(QLatin1String("0")) || is(QLatin1String("no")))
        return false;
    reportDefault(element, name, QStringLiteral("true or false"));
    return defaultValue;
}

int intOf(const QDomElement& element, const QString& name, const std::optional<QString>& text, int defaultValue)
{
    if (!text)
        return defaultValue;
    bool ok = false;
    const int value = QStringView(*text).trimmed().toInt(&ok, 10);
    if (!ok)
        reportDefault(element, name, QStringLiteral("a whole number"));
    return ok ? value : defaultValue;
}

QRect rectOf(const Coordinates<4>& read, const QRect& defaultValue)
{
    return read.any() ? QRect(read.intAt(0), read.intAt(1), read.intAt(2), read.intAt(3)) : defaultValue;
}
}

QString PvXMLParser::attribute(const QDomElement& element, const QString& name, const QString& defaultValue, bool trim)
{
    return textOf(PvXMLAttribute::value(element, name), defaultValue, trim);
}

QString PvXMLParser::attribute(PvXMLAttributes& attributes, const QString& name, const QString& defaultValue, bool trim)
{
    return textOf(attributes.take(name), defaultValue, trim);
}

bool PvXMLParser::boolAttribute(const QDomElement& element, const QString& name, bool defaultValue)
{
    return boolOf(element, name, PvXMLAttribute::value(element, name), defaultValue);
}

bool PvXMLParser::boolAttribute(PvXMLAttributes& attributes, const QString& name, bool defaultValue)
{
    return boolOf(attributes.element(), name, attributes.take(name), defaultValue);
}

int PvXMLParser::intAttribute(const QDomElement& element, const QString& name, int defaultValue)
{
    return intOf(element, name, PvXMLAttribute::value(element, name), defaultValue);
}

int PvXMLParser::intAttribute(PvXMLAttributes& attributes, const QString& name, int defaultValue)
{
    return intOf(attributes.element(), name, attributes.take(name), defaultValue);
}

double PvXMLParser::doubleAttribute(const QDomElement& element, const QString& name, double defaultValue)
{
    return doubleOf(element, name).value_or(defaultValue);
}

int PvXMLParser::readAngle(const QDomElement& element, const QString& name, int defaultDegrees)
{
    const std::optional<double> degrees = doubleOf(element, name);
    if (!degrees || !std::isfinite(*degrees) || *degrees > INT_MAX || *degrees < INT_MIN)
        return defaultDegrees;
    return qRound(*degrees);
}

PvDistance PvXMLParser::readDistance(const QDomElement& element, const QString& name, double defaultValue, PvDistanceUnit unit)
{
    return PvDistance(doubleOf(element, name).value_or(defaultValue), unit);
}

QRect PvXMLParser::readRect(const QDomElement& element, const QRect& defaultValue)
{
    return rectOf(Coordinates<4>(element, rectNames(), lookupIn(element)), defaultValue);
}

QRect PvXMLParser::readRect(PvXMLAttributes& attributes, const QRect& defaultValue)
{
    return rectOf(Coordinates<4>(attributes.element(), rectNames(), takeFrom(attributes)), defaultValue);
}

QRectF PvXMLParser::readRectF(const QDomElement& element, const QRectF& defaultValue)
{
    const Coordinates<4> read(element, rectNames(), lookupIn(element));
    return read.any() ? QRectF(read.at(0), read.at(1), read.at(2), read.at(3)) : defaultValue;
}

QSize PvXMLParser::readSize(const QDomElement& element, const QSize& defaultValue)
{
    static const std::array<QString, 2> names { QStringLiteral("width"), QStringLiteral("height") };
    const Coordinates<2> read(element, names, lookupIn(element));
    return read.any() ? QSize(read.intAt(0), read.intAt(1)) : defaultValue;
}

QVector3D PvXMLParser::readVector3D(const QDomElement& element, const QVector3D& defaultValue)
{
    static const std::array<QString, 3> names { QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z") };
    const Coordinates<3> read(element, names, lookupIn(element));
    return read.any() ? QVector3D(float(read.at(0)), float(read.at(1)), float(read.at(2))) : defaultValue;
}

int PvXMLParser::intText(const QDomElement& element, const QString& childName, int defaultValue)
{
    const QDomElement child = PvXMLChildElements::first(element, childName);
    if (child.isNull())
        return defaultValue;
    bool ok = false;
    const int value = child.text().trimmed().toInt(&ok, 10);
    if (!ok && PvDiagnostics::isListening(pvXmlLog()))
        PvDiagnostics::report(pvXmlLog(), PvDiagnostic::Error, child,
                              QStringLiteral("the text of %1: %2 is not a whole number; the default is used")
                                  .arg(PvDiagnostics::quoted(childName), PvDiagnostics::quoted(child.text().trimmed())));
    return ok ? value : defaultValue;
}

QList<int> PvXMLParser::intList(const QString& text)
{
    // Most lists hold no blank at all, and for them simplified() would be a copy of the same.
    const bool blanks = std::any_of(text.cbegin(), text.cend(), [](QChar c) { return c.isSpace(); });
    const QString simple = blanks ? text.simplified() : text;
    QList<int> numbers;
    for (const QStringView part : QStringView(simple).tokenize(u',', Qt::SkipEmptyParts)) {
        // Plain numbers, nearly all of them, are read without toInt()'s locale machinery.
        const std::optional<double> plain = plainNumber(part, false);
        if (plain && *plain >= INT_MIN && *plain <= INT_MAX) {
            numbers.append(int(*plain));
            continue;
        }
        bool ok = false;
        const int number = part.toInt(&ok, 10);
        if (ok)
            numbers.append(number);
    }
    return numbers;
}

QList<int> PvXMLParser::intList(const QDomElement& element)
{
    const QString text = element.text();
    QList<int> numbers = intList(text);
    // Counting commas is cheap; the pieces are looked at again only when one was skipped.
    if (numbers.size() != text.count(QLatin1Char(',')) + 1 && PvDiagnostics::isListening(pvXmlLog())) {
        const QStringList parts = text.simplified().split(QLatin1Char(','), Qt::SkipEmptyParts);
        for (const QString& part : parts) {
            bool ok = false;
            part.toInt(&ok, 10);
            if (!ok)
                PvDiagnostics::report(pvXmlLog(), PvDiagnostic::Error, element,
                                      QStringLiteral("the text of %1: %2 is not a whole number and is skipped")
                                          .arg(PvDiagnostics::quoted(element.tagName()), PvDiagnostics::quoted(part.trimmed())));
        }
    }
    return numbers;
}
