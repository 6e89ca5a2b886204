#pragma once

#include <QDomElement>
#include <QList>
#include <QPair>
#include <QString>

/*!
 * Where elements and attributes start in the text of an XML document, as 1-based line and
 * column. DOM nodes know only where their start tag ends; findings read better at the start
 * of the element or at the attribute they are about.
 */
class PvSourcePositions
{
public:
    using Position = QPair<int, int>;

    //! \a text is the text the DOM document was parsed from.
    explicit PvSourcePositions(const QString& text);

    [[nodiscard]] Position element(const QDomElement& element) const;
    //! The position of the attribute's name in the start tag, else that of the element.
    [[nodiscard]] Position attribute(const QDomElement& element, const QString& name) const;

    //! Moves a diagnostic placed where a start tag ends to the tag's start or its attribute.
    [[nodiscard]] Position refine(int line, int column, const QString& attribute) const;

private:
    [[nodiscard]] qsizetype tagStart(int line, int column, qsizetype* tagEnd) const;
    [[nodiscard]] Position at(qsizetype offset) const;
    //! Where the start tag of \a element begins; -1 when the DOM knows no position.
    [[nodiscard]] qsizetype tagStart(const QDomElement& element, qsizetype* tagEnd = nullptr) const;

    QString m_text;
    QList<qsizetype> m_lineStarts;
};
