#pragma once

#include <QList>
#include <QPointF>
#include <QRectF>
#include <QSize>
#include <QString>

class PvProductTypeDescription;

/*! One concrete page as the picture shows it: the library's answers for it and its place. */
struct PvPicturePage {
    int index = 0;
    QString pageType;
    QString alignment;
    //! The page type and alignment as the library's values.
    quint32 pageTypeValue = 0;
    quint32 alignmentValue = 0;
    int productionNumber = 0;
    bool contentAllowed = true;
    //! A narrow piece (spine) or a flap: drawn smaller than a page.
    bool narrow = false;
    QRectF rect;
    //! The edge at which the page is bound into its spread; binding marks sit along it.
    Qt::Edge boundEdge = Qt::TopEdge;
    //! The type of the surrounding the library finds for the page; empty when none fits.
    QString surroundingType;
    QList<QRectF> spiralLoops;
    //! The hanging hole; null when the page's surrounding has none.
    QRectF hole;
    bool bindingShade = false;
    bool spineFold = false;
};

/*! A heading above a part of the picture. */
struct PvPictureCaption {
    QPointF position;
    QString text;
};

/*!
 * Where everything of a product's picture goes, computed from the library's answers for a
 * project of a given page count: plain data, so that the painters and the tests share it.
 */
struct PvPictureLayout {
    //! More pages than this make a picture nobody reads, of tens of megabytes in memory.
    static constexpr int maximumPageCount = 400;

    QString productType;
    QString heading;
    bool horizontalPages = true;
    QSize size;
    QList<PvPicturePage> pages;
    QList<PvPictureCaption> captions;
    QRectF legend;
    //! Why there is nothing to draw (for the user); empty when there is.
    QString problem;

    //! The layout of a project of \a pageCount pages of \a description.
    static PvPictureLayout compute(const PvProductTypeDescription& description, int pageCount);
    //! The page of index \a index, or null.
    [[nodiscard]] const PvPicturePage* page(int index) const;
};
