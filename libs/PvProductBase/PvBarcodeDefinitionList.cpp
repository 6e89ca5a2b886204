#include "PvBarcodeDefinitionList.h"

#include "PvValuePool.h"
#include "PvXMLParser.h"
#include "PvXMLChildElements.h"

PvBarcodeDefinitionList PvBarcodeDefinitionList::createFromProductsXML(const QDomElement& barcodes, PvDistanceUnit unit)
{
    PvBarcodeDefinitionList list;
    const QString tag = QStringLiteral("barcode");
    for (const QDomElement b : PvXMLChildElements(barcodes, tag)) {
        list.m_barcodes.append({ PvValuePool::shared(PvXMLParser::attribute(b, QStringLiteral("type"), QString(), true)),
                                 PvXMLParser::intAttribute(b, QStringLiteral("page"), 0),
                                 PvXMLParser::readDistance(b, QStringLiteral("x"), 0.0, unit),
                                 PvXMLParser::readDistance(b, QStringLiteral("y"), 0.0, unit),
                                 PvXMLParser::readDistance(b, QStringLiteral("width"), 0.0, unit),
                                 PvXMLParser::readDistance(b, QStringLiteral("height"), 0.0, unit) });
    }
    return list;
}
