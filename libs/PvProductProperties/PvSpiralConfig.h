#pragma once

#include "pvproductproperties_export.h"

#include <QDomElement>
#include <QHash>
#include <QImage>
#include <QList>
#include <QSize>
#include <QString>

/*!
 * The wire spiral of a calendar or notebook: how many loops, how large each is drawn, where
 * the central hook gap lies and which loop picture to use. Also draws the strip of loops and
 * the hook opening that the editor lays over the page edge. Lengths are in the units of the
 * product's page description.
 *
 * The pictures are cached in the object without a lock: use one instance from one thread at
 * a time.
 */
class PVPRODUCTPROPERTIES_EXPORT PvSpiralConfig
{
public:
    //! No spiral: every size 0, no loop picture.
    PvSpiralConfig();
    //! Reads a "spirals" element; a null element gives count 0 with the usual loop sizes.
    explicit PvSpiralConfig(const QDomElement& element);
    //! Values own their cached pictures; a copy takes them along.
    //! @{
    PvSpiralConfig(const PvSpiralConfig& other);
    PvSpiralConfig(PvSpiralConfig&& other) noexcept;
    PvSpiralConfig& operator=(const PvSpiralConfig& other);
    PvSpiralConfig& operator=(PvSpiralConfig&& other) noexcept;
    virtual ~PvSpiralConfig();
    //! @}

    /*!
     * Whether a picture path from a product file may be read: relative to the thumbnails
     * folder, without ".." parts. Other paths are refused with a warning.
     */
    [[nodiscard]] static bool isPicturePathAllowed(const QString& path);

    //! Whether there are loops at all.
    [[nodiscard]] bool hasSpiral() const { return m_count > 0; }
    //! The number of loops ("count").
    [[nodiscard]] int spiralCount() const { return m_count; }
    //! Both hook sizes are set.
    [[nodiscard]] bool hasHook() const { return m_hookWidth != 0 && m_hookHeight != 0; }
    //! Width of the gap for the hook ("hookWidth").
    [[nodiscard]] int hookWidth() const { return m_hookWidth; }
    //! Height of the gap for the hook ("hookHeight").
    [[nodiscard]] int hookHeight() const { return m_hookHeight; }
    //! The file name of the loop picture in the thumbnails directory.
    [[nodiscard]] QString variant() const { return m_variant; }
    //! The loop pictures by wire colour ("loopImage" children: variant to imagePath).
    [[nodiscard]] QHash<QString, QString> loopImages() const;

    //! Compares count and hook size only; loop sizes, picture and colours do not count.
    bool operator==(const PvSpiralConfig& other) const;
    //! The opposite of ==.
    bool operator!=(const PvSpiralConfig& other) const { return !(*this == other); }
    //! By count, then this hook width against the other's hook height, then hook height.
    bool operator<(const PvSpiralConfig& other) const;

    /*!
     * Switches to the loop picture of \a colour when the file names one; an unknown colour
     * changes nothing. A loop picture already loaded stays in use.
     */
    void setSpiralColor(const QString& colour);

    /*!
     * The laid-out size of the spiral: count loops with loopDistance between them, along the
     * edge given by \a orientation. Any other value gives QSize(-1, -1).
     */
    [[nodiscard]] QSize spiralSize(Qt::Orientation orientation) const;

    //! The loop picture scaled to loopWidth x loopHeight; empty when the file does not load.
    [[nodiscard]] QImage bindingLoopImage() const;
    //! The strip of all loops, turned for a vertical edge; empty for any other orientation.
    [[nodiscard]] QImage spiralImage(Qt::Orientation orientation) const;
    /*!
     * A horizontal strip of \a loops loop pictures, loopWidth apart, leaving out the loops
     * under the hook. The gap between loops is loopWidth, not loopDistance: spiralSize() and
     * the drawn strip differ on purpose.
     */
    [[nodiscard]] QImage spiralBindingLoopHorizontal(int loops) const;
    //! The horizontal strip turned clockwise by 90 degrees.
    [[nodiscard]] QImage spiralBindingLoopVertical(int loops) const;
    /*!
     * The hook opening: an ellipse in the skin's background colour, twice as high as the hook,
     * whose lower half shows as the opening in the paper. Redrawn when the hook size or the
     * background colour changes; the colour last drawn with is remembered for the whole process.
     */
    [[nodiscard]] QImage spiralHookImage() const;

private:
    void readLoopImages(const QDomElement& element);

    mutable QImage m_loopImageCache;
    mutable QImage m_hookImageCache;
    int m_count = 0;
    int m_hookWidth = 0;
    int m_hookHeight = 0;
    int m_loopHeight = 0;
    int m_loopWidth = 0;
    int m_loopDistance = 0;
    QString m_variant;
    // Colour and picture, sorted by colour. A few at most, and the same in many products: a
    // list of them is one allocation, which products share.
    QList<std::pair<QString, QString>> m_loopImages;
};
