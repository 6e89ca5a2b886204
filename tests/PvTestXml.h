#pragma once

#include <QDomDocument>
#include <QDomElement>
#include <QString>

//! The document element of \a xml, which a test writes itself: XML that does not parse is a
//! mistake in the test, and stops it. An empty text gives the null element.
inline QDomElement element(const QString& xml)
{
    if (xml.isEmpty())
        return {};
    QDomDocument document;
    if (!document.setContent(xml))
        qFatal("bad test XML");
    return document.documentElement();
}
