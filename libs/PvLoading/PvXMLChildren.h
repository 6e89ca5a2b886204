#pragma once

#include "pvloading_export.h"

#include <QDomElement>
#include <QList>
#include <QString>
#include <QVarLengthArray>

/*!
 * The child elements of one element, listed in one pass. Readers that look for several
 * children of the same element ask this instead of walking the children once per name:
 * each walk costs a reference count change per node passed.
 */
class PVLOADING_EXPORT PvXMLChildren
{
public:
    //! Lists the child elements of \a parent.
    explicit PvXMLChildren(const QDomElement& parent);

    //! The element whose children these are.
    [[nodiscard]] const QDomElement& parent() const { return m_parent; }
    //! The first child named \a tag, as QDomElement::firstChildElement() finds it.
    [[nodiscard]] QDomElement first(QStringView tag) const;
    //! Every child named \a tag, in document order.
    [[nodiscard]] QList<QDomElement> all(QStringView tag) const;

private:
    QDomElement m_parent;
    QVarLengthArray<std::pair<QString, QDomElement>, 24> m_children;
};
