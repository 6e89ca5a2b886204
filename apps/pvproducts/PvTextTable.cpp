#include "PvTextTable.h"

#include <QTextStream>

PvTextTable::PvTextTable(const QStringList& header)
    : m_rows { header }
{
}

void PvTextTable::addRow(const QStringList& cells)
{
    m_rows.append(cells);
}

void PvTextTable::print(QTextStream& out) const
{
    QList<qsizetype> widths;
    for (const QStringList& row : m_rows) {
        for (qsizetype i = 0; i < row.size(); ++i) {
            if (widths.size() <= i)
                widths.append(0);
            widths[i] = qMax(widths.at(i), row.at(i).size());
        }
    }
    for (const QStringList& row : m_rows) {
        QString line;
        for (qsizetype i = 0; i < row.size(); ++i)
            line += i + 1 < row.size() ? row.at(i).leftJustified(widths.at(i) + 2) : row.at(i);
        out << line << '\n';
    }
}
