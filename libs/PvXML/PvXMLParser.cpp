#include "PvXMLParser.h"

#include "PvDiagnostics.h"
#include "PvXMLAttribute.h"
#include "PvXMLChildElements.h"

#include <QStringTokenizer>
#include <QStringView>

#include <algorithm>
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

// Coordinates are whole numbers almost always; those are read here, exactly as toDouble()
// would read them, and everything else by toDouble().
std::optional<double> plainInteger(QStringView text)
{
    const bool negative = text.startsWith(u'-');
    const QStringView digits = negative || text.startsWith(u'+') ? text.mid(1) : text;
    if (digits.isEmpty() || digits.size() > 15)
        return std::nullopt;
    qint64 value = 0;
    for (const QChar c : digits) {
        if (c < u'0' || c > u'9')
            return std::nullopt;
        value = value * 10 + (c.unicode() - u'0');
    }
    return negative ? -double(value) : double(value);
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

std::optional<double> doubleOf(const QDomElement& element, const QString& name)
{
    const std::optional<QString> text = PvXMLAttribute::value(element, name);
    if (!text)
        return std::nullopt;
    const QStringView trimmed = QStringView(*text).trimmed();
    if (const std::optional<double> whole = plainInteger(trimmed))
        return whole;
    bool ok = false;
    const double value = trimmed.toDouble(&ok);
    if (!ok)
        reportDefault(element, name, QStringLiteral("a number"));
    return ok ? std::optional<double>(value) : std::nullopt;
}

bool hasAnyAttribute(const QDomElement& element, std::initializer_list<QString> names)
{
    for (const QString& name : names) {
        if (element.hasAttribute(name))
            return true;
    }
    return false;
}

double coordinate(const QDomElement& element, const QString& name)
{
    return doubleOf(element, name).value_or(0.0);
}

// Product files are data from outside: a coordinate beyond int or not finite must not overflow.
int clampedRound(double value)
{
    if (!std::isfinite(value))
        return 0;
    return qRound(std::clamp(value, double(INT_MIN), double(INT_MAX)));
}

int intCoordinate(const QDomElement& element, const QString& name)
{
    return clampedRound(coordinate(element, name));
}
}

QString PvXMLParser::attribute(const QDomElement& element, const QString& name, const QString& defaultValue, bool trim)
{
    const std::optional<QString> text = PvXMLAttribute::value(element, name);
    if (!text)
        return defaultValue;
    return trim ? text->trimmed() : *text;
}

bool PvXMLParser::boolAttribute(const QDomElement& element, const QString& name, bool defaultValue)
{
    const std::optional<QString> value = PvXMLAttribute::value(element, name);
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

int PvXMLParser::intAttribute(const QDomElement& element, const QString& name, int defaultValue)
{
    const std::optional<QString> text = PvXMLAttribute::value(element, name);
    if (!text)
        return defaultValue;
    bool ok = false;
    const int value = QStringView(*text).trimmed().toInt(&ok, 10);
    if (!ok)
        reportDefault(element, name, QStringLiteral("a whole number"));
    return ok ? value : defaultValue;
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
    if (!hasAnyAttribute(element, { QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("width"), QStringLiteral("height") }))
        return defaultValue;
    return QRect(intCoordinate(element, QStringLiteral("x")), intCoordinate(element, QStringLiteral("y")), intCoordinate(element, QStringLiteral("width")), intCoordinate(element, QStringLiteral("height")));
}

QRectF PvXMLParser::readRectF(const QDomElement& element, const QRectF& defaultValue)
{
    if (!hasAnyAttribute(element, { QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("width"), QStringLiteral("height") }))
        return defaultValue;
    return QRectF(coordinate(element, QStringLiteral("x")), coordinate(element, QStringLiteral("y")), coordinate(element, QStringLiteral("width")), coordinate(element, QStringLiteral("height")));
}

QSize PvXMLParser::readSize(const QDomElement& element, const QSize& defaultValue)
{
    if (!hasAnyAttribute(element, { QStringLiteral("width"), QStringLiteral("height") }))
        return defaultValue;
    return QSize(intCoordinate(element, QStringLiteral("width")), intCoordinate(element, QStringLiteral("height")));
}

QVector3D PvXMLParser::readVector3D(const QDomElement& element, const QVector3D& defaultValue)
{
    if (!hasAnyAttribute(element, { QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z") }))
        return defaultValue;
    return QVector3D(float(coordinate(element, QStringLiteral("x"))), float(coordinate(element, QStringLiteral("y"))), float(coordinate(element, QStringLiteral("z"))));
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
    QList<int> numbers;
    const QString simple = text.simplified();
    for (const QStringView part : QStringView(simple).tokenize(u',', Qt::SkipEmptyParts)) {
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
