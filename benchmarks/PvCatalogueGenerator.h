#pragma once

#include <QByteArray>
#include <QString>

/*!
 * Writes catalogues of generated product files for benchmarks and profiling runs, so that no
 * large catalogue has to live in the repository. The files cycle through four shapes modelled
 * on the sample catalogue, each a different product type, with values that vary from file to
 * file; every file loads without a warning.
 */
class PvCatalogueGenerator
{
public:
    enum class Shape {
        //! Six jig types with category lists, six surroundings, eight default templates.
        PhotoBook,
        //! A year run with spiral and hanging hole and a date range.
        Calendar,
        //! A poster, canvas, acrylic or aluminium print with its classification and frames.
        WallDecor,
        //! A folded card with its 3D preview.
        Card,
    };
    static constexpr int ShapeCount = 4;

    //! The shape of the file with \a index.
    [[nodiscard]] static Shape shape(int index);
    //! The product type of the file with \a index; unique per index.
    [[nodiscard]] static QString productName(int index);
    //! The file name of the file with \a index; names sort in index order.
    [[nodiscard]] static QString fileName(int index);
    //! The content of the file with \a index, UTF-8 encoded.
    [[nodiscard]] static QByteArray productFile(int index);
    /*!
     * Writes the files with the indexes 0 to \a count - 1 into \a dir, which must exist.
     * Answers their total size in bytes, or -1 (with a warning) when a file cannot be written.
     */
    [[nodiscard]] static qint64 write(const QString& dir, int count);
};
