#include "PvXMLChildElements.h"

PvXMLChildElements::PvXMLChildElements(const QDomElement& parent, const QString& tag)
    : m_tag(tag)
{
    new (m_slots[0]) QDomNode(parent.firstChild());
    skipToMatch();
}

bool PvXMLChildElements::hasTag() const
{
    // The node name is the tag name unless a namespace prefix leads it, which only an
    // element made with a namespace has; the handle toElement() would make costs a count.
    const QString name = node().nodeName();
    if (!name.contains(u':'))
        return name == m_tag;
    return node().toElement().tagName() == m_tag;
}

QDomElement PvXMLChildElements::first(const QDomElement& parent, const QString& tag)
{
    const PvXMLChildElements walk(parent, tag);
    return walk.node().toElement();
}
