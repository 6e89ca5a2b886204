#pragma once

class QPainter;
struct PvPictureLayout;

/*! The legend under a product's picture: what the hatching and each mark mean. */
namespace PvPictureLegend {
void paint(QPainter& painter, const PvPictureLayout& layout);
}
