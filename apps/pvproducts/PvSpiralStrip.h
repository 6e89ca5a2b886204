#pragma once

#include <QImage>
#include <QString>

class PvProductTypeDescription;

/*! The spiral strip of a product as "spiral" renders it: that of its first surrounding with a spiral. */
namespace PvSpiralStrip {
//! Whether any surrounding of the product has a spiral.
[[nodiscard]] bool hasSpiral(const PvProductTypeDescription& description);
/*!
 * The strip for an edge of \a orientation; a null image when the product has no spiral or
 * the strip is empty, with the reason for the user in \a whyNot.
 */
[[nodiscard]] QImage render(const PvProductTypeDescription& description, Qt::Orientation orientation, QString* whyNot);
}
