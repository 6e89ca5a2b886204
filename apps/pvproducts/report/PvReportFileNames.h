#pragma once

#include <QSet>
#include <QString>

/*!
 * File names for products whose type names may hold anything: path separators, "..",
 * markup, names reserved by some file systems, or names that differ only in case.
 */
class PvReportFileNames
{
public:
    /*!
     * A stem of letters, digits, '-', '_' and '.' that no other name got from this object,
     * even ignoring case; the name itself where it is such a stem already.
     */
    [[nodiscard]] QString stem(const QString& name);

private:
    QSet<QString> m_taken;
};
