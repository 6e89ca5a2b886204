#pragma once

#include <QList>
#include <QStringList>

class QTextStream;

/*! Rows of text printed in aligned columns. */
class PvTextTable
{
public:
    explicit PvTextTable(const QStringList& header);
    void addRow(const QStringList& cells);
    [[nodiscard]] bool isEmpty() const { return m_rows.size() <= 1; }
    void print(QTextStream& out) const;

private:
    QList<QStringList> m_rows;
};
