#include "PvDiagnostics.h"

#include "PvDiagnosticCollector.h"

#include <QDomNode>
#include <QList>
#include <QXmlStreamReader>

#include <algorithm>
#include <limits>

Q_LOGGING_CATEGORY(pvXmlLog, "pv.xml", QtWarningMsg)

namespace {
// Optimal string alignment: a swap of two neighbours, the commonest typo, counts as one edit.
int editDistance(const QString& a, const QString& b)
{
    const qsizetype width = b.size() + 1;
    QList<int> d((a.size() + 1) * width);
    auto at = [&](qsizetype i, qsizetype j) -> int& { return d[i * width + j]; };
    for (qsizetype i = 0; i <= a.size(); ++i)
        at(i, 0) = int(i);
    for (qsizetype j = 0; j <= b.size(); ++j)
        at(0, j) = int(j);
    for (qsizetype i = 1; i <= a.size(); ++i) {
        for (qsizetype j = 1; j <= b.size(); ++j) {
            const int cost = a.at(i - 1) == b.at(j - 1) ? 0 : 1;
            at(i, j) = std::min({ at(i - 1, j) + 1, at(i, j - 1) + 1, at(i - 1, j - 1) + cost });
            if (i > 1 && j > 1 && a.at(i - 1) == b.at(j - 2) && a.at(i - 2) == b.at(j - 1))
                at(i, j) = std::min(at(i, j), at(i - 2, j - 2) + 1);
        }
    }
    return at(a.size(), b.size());
}

struct OpenElement {
    QString name;
    qint64 line;
};

// Line and 1-based column of a character offset into \a text.
QPair<int, int> placeOf(const QString& text, qsizetype offset)
{
    offset = std::clamp<qsizetype>(offset, 0, text.size());
    const qsizetype lineStart = text.lastIndexOf(QLatin1Char('\n'), offset - 1) + 1;
    return { int(text.left(offset).count(QLatin1Char('\n'))) + 1, int(offset - lineStart) + 1 };
}
}

bool PvDiagnostics::isListening(const QLoggingCategory& category)
{
    return category.isInfoEnabled() || (PvDiagnosticCollector::anyExists() && PvDiagnosticCollector::current());
}

void PvDiagnostics::report(const QLoggingCategory& category, PvDiagnostic::Severity severity, const QDomNode& node, const QString& message,
                           const QString& attribute, const QString& suggestion, const QString& found)
{
    PvDiagnostic diagnostic;
    diagnostic.line = std::max(node.lineNumber(), 0);
    diagnostic.column = std::max(node.columnNumber(), 0);
    diagnostic.place = PvDiagnostic::StartTagEnd;
    diagnostic.severity = severity;
    diagnostic.message = message;
    diagnostic.attribute = attribute;
    diagnostic.suggestion = suggestion;
    diagnostic.found = suggestion.isEmpty() ? QString() : found;
    report(category, std::move(diagnostic));
}

void PvDiagnostics::reportFile(const QLoggingCategory& category, PvDiagnostic::Severity severity, const QString& message)
{
    PvDiagnostic diagnostic;
    diagnostic.severity = severity;
    diagnostic.message = message;
    report(category, std::move(diagnostic));
}

void PvDiagnostics::report(const QLoggingCategory& category, PvDiagnostic diagnostic)
{
    // A place in the file is 1-based; the whole file is reported at its start.
    if (diagnostic.line < 1) {
        diagnostic.line = diagnostic.column = 1;
        diagnostic.place = PvDiagnostic::WholeFile;
    }
    diagnostic.column = std::max(diagnostic.column, 1);
    diagnostic.category = QString::fromLatin1(category.categoryName());
    if (PvDiagnosticCollector* collector = PvDiagnosticCollector::current()) {
        collector->add(std::move(diagnostic));
        return;
    }
    if (category.isInfoEnabled())
        QMessageLogger(nullptr, 0, nullptr, category.categoryName()).info().noquote() << diagnostic.toString();
}

QString PvDiagnostics::closest(const QString& text, const QStringList& known)
{
    const QString lower = text.trimmed().toLower();
    if (lower.isEmpty())
        return {};
    QString best;
    int bestDistance = std::numeric_limits<int>::max();
    for (const QString& name : known) {
        const int distance = editDistance(lower, name.toLower());
        if (distance < bestDistance) {
            best = name;
            bestDistance = distance;
        }
    }
    // Distance 0 is a name that differs in case only, a typo like any other.
    if (best.isEmpty() || best == text.trimmed())
        return {};
    // A typo is an edit or two; beyond that a long name is merely similar, not meant.
    return bestDistance <= std::clamp(int(best.size()) / 4, 1, 3) ? best : QString();
}

PvDiagnostic PvDiagnostics::xmlError(const QByteArray& data)
{
    return xmlError(data, 0, 0, QString());
}

PvDiagnostic PvDiagnostics::xmlError(const QByteArray& data, int line, int column, const QString& message)
{
    PvDiagnostic diagnostic;
    diagnostic.severity = PvDiagnostic::Error;
    if (data.trimmed().isEmpty()) {
        diagnostic.message = QStringLiteral("the file is empty");
        return diagnostic;
    }
    QXmlStreamReader reader(data);
    QList<OpenElement> open;
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::StartElement)
            open.append({ reader.name().toString(), reader.lineNumber() });
        else if (token == QXmlStreamReader::EndElement && !open.isEmpty())
            open.removeLast();
    }
    if (!reader.hasError()) {
        diagnostic.message = QStringLiteral("no document element");
        return diagnostic;
    }
    // The stream reader stands behind the offending character; the DOM parser's place is exact.
    diagnostic.line = line > 0 ? line : int(reader.lineNumber());
    diagnostic.column = std::max(line > 0 ? column : int(reader.columnNumber()), 1);
    QString words = message.isEmpty() ? reader.errorString() : message;
    while (words.endsWith(QLatin1Char('.')))
        words.chop(1);
    diagnostic.message = QStringLiteral("not well-formed XML: ") + words;
    const QString text = QString::fromUtf8(data);
    if (reader.error() == QXmlStreamReader::PrematureEndOfDocumentError && !open.isEmpty()) {
        // At the end of the text the reader stands before the next column, not behind a character.
        diagnostic.line = int(reader.lineNumber());
        diagnostic.column = int(reader.columnNumber()) + 1;
        diagnostic.message = QStringLiteral("element %1 opened on line %2 is never closed").arg(quoted(open.constLast().name)).arg(open.constLast().line);
        return diagnostic;
    }
    // A mismatched end tag: the reader stops just behind it.
    const qsizetype offset = std::min<qsizetype>(qsizetype(reader.characterOffset()), text.size());
    const qsizetype endTag = text.lastIndexOf(QLatin1String("</"), offset - 1);
    if (!open.isEmpty() && endTag >= 0 && text.indexOf(QLatin1Char('>'), endTag) + 1 >= offset - 1) {
        const qsizetype nameEnd = text.indexOf(QLatin1Char('>'), endTag);
        const QString closer = text.mid(endTag + 2, nameEnd - endTag - 2).trimmed();
        if (closer != open.constLast().name) {
            const QPair<int, int> place = placeOf(text, endTag);
            diagnostic.line = place.first;
            diagnostic.column = place.second;
            diagnostic.message = QStringLiteral("element %1 opened on line %2 is closed by %3 on line %4")
                                     .arg(quoted(open.constLast().name))
                                     .arg(open.constLast().line)
                                     .arg(quoted(closer))
                                     .arg(place.first);
        }
    }
    return diagnostic;
}

QString PvDiagnostics::quoted(const QString& text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}
