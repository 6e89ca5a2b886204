#pragma once

#include <QDir>
#include <QTemporaryDir>

/*!
 * A generated catalogue in a temporary directory that lives as long as the object. The
 * benchmarks share one catalogue per size through cached().
 */
class PvGeneratedCatalogue
{
public:
    explicit PvGeneratedCatalogue(int count);

    //! Whether every file was written.
    [[nodiscard]] bool isValid() const;
    [[nodiscard]] QDir dir() const;
    [[nodiscard]] int count() const;
    //! The total size of the files in bytes.
    [[nodiscard]] qint64 bytes() const;

    //! The catalogue of \a count files, written at the first call for that count.
    [[nodiscard]] static const PvGeneratedCatalogue& cached(int count);

private:
    QTemporaryDir m_dir;
    int m_count = 0;
    qint64 m_bytes = -1;
};
