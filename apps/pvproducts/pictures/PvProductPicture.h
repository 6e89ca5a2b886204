#pragma once

#include <QString>

class PvProductTypeDescription;
class QPainter;
struct PvPictureLayout;

/*!
 * The picture of a product for authors of product files: its concrete pages as they are
 * bound, labelled, with the marks of their surroundings and a legend.
 */
namespace PvProductPicture {
//! Writes the picture of a project of pageCount pages of the product to fileName, PNG or SVG by
//! its suffix. Answers an empty string when written, else why not (for the user).
QString write(const PvProductTypeDescription& description, int pageCount, const QString& fileName);
//! Draws \a layout (one without a problem) with \a painter, on a white ground of its size.
void paint(QPainter& painter, const PvPictureLayout& layout);
//! Whether \a fileName has a suffix the picture can be written as (".png" or ".svg", any case).
bool isSupportedFileName(const QString& fileName);
}
