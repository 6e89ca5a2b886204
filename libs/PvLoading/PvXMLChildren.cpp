#include "PvXMLChildren.h"

#include "PvXMLChildElements.h"

PvXMLChildren::PvXMLChildren(const QDomElement& parent)
    : m_parent(parent)
{
    for (const QDomElement child : PvXMLChildElements(parent))
        m_children.append({ child.tagName(), child });
}

QDomElement PvXMLChildren::first(QStringView tag) const
{
    for (const auto& [name, element] : m_children) {
        if (name == tag)
            return element;
    }
    return {};
}

QList<QDomElement> PvXMLChildren::all(QStringView tag) const
{
    QList<QDomElement> found;
    for (const auto& [name, element] : m_children) {
        if (name == tag)
            found.append(element);
    }
    return found;
}
