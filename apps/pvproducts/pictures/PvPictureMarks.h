#pragma once

#include <QColor>
#include <QRectF>

class PvProductTypeDescription;
class QPainter;
struct PvPicturePage;

/*!
 * The surroundings of a page as marks on it: spiral loops along the bound edge, the hanging
 * hole, the binding shade and the spine fold, from the surrounding the library finds for it.
 */
namespace PvPictureMarks {
//! Colours of the marks; the legend shows them, and each is a colour no other mark uses.
const QColor loopColor(40, 90, 200);
const QColor holeColor(200, 40, 40);
const QColor foldColor(30, 150, 60);
const QColor shadeColor(90, 60, 20);

//! Fills the surrounding of \a page (its rect and bound edge set) from the library.
void place(PvPicturePage& page, const PvProductTypeDescription& description);
//! Draws the binding shade and the spine fold, which lie under the page's label.
void paintUnder(QPainter& painter, const PvPicturePage& page);
//! Draws the spiral loops and the hole, which lie over everything.
void paintOver(QPainter& painter, const PvPicturePage& page);
//! One loop in \a rect, as the legend shows it too.
void paintLoop(QPainter& painter, const QRectF& rect);
//! The hole in \a rect.
void paintHole(QPainter& painter, const QRectF& rect);
//! A shade falling away from the \a edge of \a rect.
void paintShade(QPainter& painter, const QRectF& rect, Qt::Edge edge);
//! A fold line along the \a edge of \a rect.
void paintFold(QPainter& painter, const QRectF& rect, Qt::Edge edge);
}
