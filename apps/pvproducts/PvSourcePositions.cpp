#include "PvSourcePositions.h"

#include <QRegularExpression>

#include <algorithm>

PvSourcePositions::PvSourcePositions(const QString& text)
    : m_text(text)
{
    m_lineStarts.append(0);
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.at(i) == QLatin1Char('\n'))
            m_lineStarts.append(i + 1);
    }
}

PvSourcePositions::Position PvSourcePositions::at(qsizetype offset) const
{
    const auto line = std::upper_bound(m_lineStarts.cbegin(), m_lineStarts.cend(), offset) - 1;
    return { int(line - m_lineStarts.cbegin()) + 1, int(offset - *line) + 1 };
}

qsizetype PvSourcePositions::tagStart(const QDomElement& element, qsizetype* tagEnd) const
{
    return tagStart(element.lineNumber(), element.columnNumber(), tagEnd);
}

qsizetype PvSourcePositions::tagStart(int line, int column, qsizetype* tagEnd) const
{
    // The DOM gives the line and the characters consumed on it after the start tag's ">".
    if (line < 1 || line > m_lineStarts.size())
        return -1;
    const qsizetype end = qMin(m_lineStarts.at(line - 1) + column, m_text.size());
    if (tagEnd)
        *tagEnd = end;
    // Attribute values hold no raw "<", so the last one before the end opens the tag.
    return m_text.lastIndexOf(QLatin1Char('<'), end - 1);
}

PvSourcePositions::Position PvSourcePositions::element(const QDomElement& element) const
{
    const qsizetype start = tagStart(element);
    return start < 0 ? Position { element.lineNumber(), element.columnNumber() } : at(start);
}

PvSourcePositions::Position PvSourcePositions::attribute(const QDomElement& element, const QString& name) const
{
    return refine(element.lineNumber(), element.columnNumber(), name);
}

PvSourcePositions::Position PvSourcePositions::refine(int line, int column, const QString& name) const
{
    qsizetype end = 0;
    const qsizetype start = tagStart(line, column, &end);
    if (start < 0)
        return { line, qMax(column, 1) };
    if (name.isEmpty())
        return at(start);
    const QRegularExpression pattern(QStringLiteral("\\s(%1)\\s*=").arg(QRegularExpression::escape(name)));
    const QRegularExpressionMatch match = pattern.match(m_text.mid(start, end - start));
    return at(match.hasMatch() ? start + match.capturedStart(1) : start);
}
