#include "PvProductCoordinates.h"

#include <climits>
#include <cmath>

namespace {
// Tenths of a millimetre to units, rounded with halves away from zero. Out-of-range and NaN
// inputs are clamped rather than overflowing the int.
qint64 toUnits(double tenths)
{
    const double units = tenths / 10 * PvProductCoordinates::productionUPM();
    if (std::isnan(units))
        return 0;
    const double rounded = std::trunc(units + std::copysign(0.5, units));
    return qint64(qBound(double(INT_MIN), rounded, double(INT_MAX)));
}

int evenSize(double tenths)
{
    qint64 units = toUnits(tenths);
    if (units % 2 != 0)
        ++units;
    if (units < 3)
        return 2;
    // INT_MAX is odd; its even neighbour below keeps the size even.
    return int(qMin<qint64>(units, INT_MAX - 1));
}

double toMM(int units)
{
    return double(units) / PvProductCoordinates::productionUPM();
}
}

int PvProductCoordinates::posX(const QRectF& rect)
{
    return int(toUnits(rect.x() + rect.width() * 0.5));
}

int PvProductCoordinates::posY(const QRectF& rect)
{
    return int(toUnits(rect.y() + rect.height() * 0.5));
}

int PvProductCoordinates::posWidth(const QRectF& rect)
{
    return evenSize(rect.width());
}

int PvProductCoordinates::posHeight(const QRectF& rect)
{
    return evenSize(rect.height());
}

double PvProductCoordinates::posXMM(const QRectF& rect) { return toMM(posX(rect)); }
double PvProductCoordinates::posYMM(const QRectF& rect) { return toMM(posY(rect)); }
double PvProductCoordinates::posWidthMM(const QRectF& rect) { return toMM(posWidth(rect)); }
double PvProductCoordinates::posHeightMM(const QRectF& rect) { return toMM(posHeight(rect)); }
