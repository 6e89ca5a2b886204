#pragma once

#include "pvproductproperties_export.h"

#include <QRectF>

/*!
 * Converts layout rectangles (tenths of a millimetre) into the production's whole units,
 * 100 to the millimetre: the centre and an even size, so that the half-size around the
 * centre is whole. Rounding takes halves away from zero.
 */
class PVPRODUCTPROPERTIES_EXPORT PvProductCoordinates
{
public:
    PvProductCoordinates() = delete;

    //! Production units per millimetre.
    [[nodiscard]] static int productionUPM() { return 100; }

    //! The horizontal centre in units.
    [[nodiscard]] static int posX(const QRectF& rect);
    //! The vertical centre in units.
    [[nodiscard]] static int posY(const QRectF& rect);
    //! The width in units, made even by adding 1 to odd values, and never below 2.
    [[nodiscard]] static int posWidth(const QRectF& rect);
    //! The height in units, made even as posWidth().
    [[nodiscard]] static int posHeight(const QRectF& rect);

    //! The whole-unit values above in millimetres.
    [[nodiscard]] static double posXMM(const QRectF& rect);
    //! posY() in millimetres.
    [[nodiscard]] static double posYMM(const QRectF& rect);
    //! posWidth() in millimetres.
    [[nodiscard]] static double posWidthMM(const QRectF& rect);
    //! posHeight() in millimetres.
    [[nodiscard]] static double posHeightMM(const QRectF& rect);
};
