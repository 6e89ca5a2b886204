#pragma once

#include "PvDistance.h"
#include "pvproductbase_export.h"

#include <QDomElement>
#include <QList>
#include <QString>

/*! Where production prints barcodes on a product, from its "barcodes" element. */
class PVPRODUCTBASE_EXPORT PvBarcodeDefinitionList
{
public:
    struct Barcode {
        QString type;
        int page = 0;
        PvDistance x;
        PvDistance y;
        PvDistance width;
        PvDistance height;
        friend bool operator==(const Barcode& a, const Barcode& b)
        {
            return a.type == b.type && a.page == b.page && a.x == b.x && a.y == b.y && a.width == b.width && a.height == b.height;
        }
    };

    //! One entry per child "barcode" of \a barcodes, distances in \a unit.
    [[nodiscard]] static PvBarcodeDefinitionList createFromProductsXML(const QDomElement& barcodes, PvDistanceUnit unit);

    [[nodiscard]] QList<Barcode> barcodes() const { return m_barcodes; }
    [[nodiscard]] bool isEmpty() const { return m_barcodes.isEmpty(); }
    [[nodiscard]] qsizetype size() const { return m_barcodes.size(); }

private:
    QList<Barcode> m_barcodes;
};
