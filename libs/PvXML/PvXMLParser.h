#pragma once

#include "PvDistance.h"
#include "PvXMLAttribute.h"
#include "pvxml_export.h"

#include <optional>

#include <QDomElement>
#include <QList>
#include <QRect>
#include <QRectF>
#include <QSize>
#include <QString>
#include <QVector3D>

/*!
 * Typed readers of XML attributes. A missing attribute or child, or text that does not
 * parse, gives the default the caller passes. The readers that take PvXMLAttributes read
 * from its element what it has not yet found missing.
 */
class PVXML_EXPORT PvXMLParser
{
public:
    //! The attribute's text; \a trim strips surrounding white space.
    [[nodiscard]] static QString attribute(const QDomElement& element, const QString& name, const QString& defaultValue = QString(), bool trim = false);
    //! attribute() of the element of \a attributes.
    [[nodiscard]] static QString attribute(PvXMLAttributes& attributes, const QString& name, const QString& defaultValue = QString(), bool trim = false);
    //! "true"/"false", "1"/"0", "yes"/"no", in any case, blanks around ignored.
    [[nodiscard]] static bool boolAttribute(const QDomElement& element, const QString& name, bool defaultValue);
    //! boolAttribute() of the element of \a attributes.
    [[nodiscard]] static bool boolAttribute(PvXMLAttributes& attributes, const QString& name, bool defaultValue);
    //! A decimal 32-bit integer with optional sign.
    [[nodiscard]] static int intAttribute(const QDomElement& element, const QString& name, int defaultValue);
    //! intAttribute() of the element of \a attributes.
    [[nodiscard]] static int intAttribute(PvXMLAttributes& attributes, const QString& name, int defaultValue);
    [[nodiscard]] static double doubleAttribute(const QDomElement& element, const QString& name, double defaultValue);
    //! Decimal degrees, rounded to the nearest whole degree.
    [[nodiscard]] static int readAngle(const QDomElement& element, const QString& name, int defaultDegrees);
    [[nodiscard]] static PvDistance readDistance(const QDomElement& element, const QString& name, double defaultValue, PvDistanceUnit unit);
    //! Attributes "x", "y", "width", "height": the default when none is present, else a missing one is 0.
    [[nodiscard]] static QRect readRect(const QDomElement& element, const QRect& defaultValue = QRect());
    //! readRect() of the element of \a attributes.
    [[nodiscard]] static QRect readRect(PvXMLAttributes& attributes, const QRect& defaultValue = QRect());
    [[nodiscard]] static QRectF readRectF(const QDomElement& element, const QRectF& defaultValue = QRectF());
    //! Attributes "width", "height", with the same rule as readRect().
    [[nodiscard]] static QSize readSize(const QDomElement& element, const QSize& defaultValue = QSize());
    //! Attributes "x", "y", "z"; a missing coordinate is 0.
    [[nodiscard]] static QVector3D readVector3D(const QDomElement& element, const QVector3D& defaultValue = QVector3D());
    //! The decimal integers of comma-separated text; empty parts and parts that are no integer are skipped.
    [[nodiscard]] static QList<int> intList(const QString& text);
    //! The same of \a element's text, reporting the parts it skips.
    [[nodiscard]] static QList<int> intList(const QDomElement& element);
    //! The integer text of the first child element \a childName.
    [[nodiscard]] static int intText(const QDomElement& element, const QString& childName, int defaultValue);
};
