#include "PvXMLBuilder.h"

#include <QDomDocument>
#include <QDomText>

QDomElement PvXMLBuilder::buildDomElement(QDomElement& parent, const QString& name, const QString& text)
{
    QDomDocument document = parent.ownerDocument();
    QDomElement child = document.createElement(name);
    child.appendChild(document.createTextNode(text));
    parent.appendChild(child);
    return child;
}
