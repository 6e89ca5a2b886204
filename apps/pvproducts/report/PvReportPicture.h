#pragma once

#include <QString>

class PvProductTypeDescription;

/*!
 * Which project a product's report page draws. A product whose page list depends on the
 * page count is drawn for a project of 24 pages, a usual order of a photo book or a set of
 * cards; a product whose page list is fixed is drawn whole; a product without pages, or with
 * more pages than a page of the report can show, is not drawn.
 */
struct PvReportPicture {
    //! The page count to draw; 0 when nothing is drawn.
    int pageCount = 0;
    //! What the picture shows, or why there is none, for the reader.
    QString caption;

    [[nodiscard]] static PvReportPicture choose(const PvProductTypeDescription& description);
    //! Draws the project to \a fileName; an empty string when written, else why not.
    [[nodiscard]] QString write(const PvProductTypeDescription& description, const QString& fileName) const;
};
