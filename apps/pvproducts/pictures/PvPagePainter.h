#pragma once

#include <QColor>
#include <QLineF>
#include <QList>
#include <QRectF>
#include <QStringList>

class QPainter;
struct PvPictureLayout;
struct PvPicturePage;

/*! Draws the pages of a product's picture: outline, hatching, marks and label. */
namespace PvPagePainter {
//! The colour of the hatching of pages on which no content is allowed; no other mark uses it.
const QColor hatchColor(190, 120, 170);

//! The heading, the captions of the cover and the spreads, and every page.
void paintPages(QPainter& painter, const PvPictureLayout& layout);
//! One page with its marks.
void paintPage(QPainter& painter, const PvPicturePage& page);
//! Diagonal hatch lines across \a rect, cut at its edges (no clipping, which not every output keeps).
QList<QLineF> hatchLines(const QRectF& rect);
//! The label lines of a page: index, page type, alignment, production number.
QStringList labelLines(const PvPicturePage& page);
}
