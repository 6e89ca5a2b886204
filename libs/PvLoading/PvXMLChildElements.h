#pragma once

#include "pvloading_export.h"

#include <QDomElement>
#include <QString>

#include <new>

/*!
 * Walks the child elements of an element, or only those of one tag name, in a range-based
 * for loop:
 * \code
 * for (const QDomElement entry : PvXMLChildElements(defaults, QStringLiteral("default")))
 *     read(entry);
 * \endcode
 * It finds what QDomNode::firstChildElement() and nextSiblingElement() find, for less:
 * every node handle Qt makes is a reference count change, and those two make and drop
 * several per step where this walk makes one and drops one. A walk goes once; it is not
 * copied.
 */
class PVLOADING_EXPORT PvXMLChildElements
{
public:
    //! Marks the end of the walk.
    struct End
    {
    };

    //! The walk's position, for the range-based for loop.
    class Iterator
    {
    public:
        //! The position of \a walk, which moves it on.
        explicit Iterator(PvXMLChildElements* walk)
            : m_walk(walk)
        {
        }
        //! The element at this position.
        [[nodiscard]] QDomElement operator*() const { return m_walk->node().toElement(); }
        //! Moves on to the next matching sibling.
        Iterator& operator++()
        {
            m_walk->advance();
            return *this;
        }
        //! Whether the walk has an element left.
        [[nodiscard]] bool operator!=(End) const { return !m_walk->node().isNull(); }

    private:
        PvXMLChildElements* m_walk;
    };

    //! The child elements of \a parent named \a tag, or all of them when \a tag is empty.
    explicit PvXMLChildElements(const QDomElement& parent, const QString& tag = QString());
    PvXMLChildElements(const PvXMLChildElements&) = delete;
    PvXMLChildElements& operator=(const PvXMLChildElements&) = delete;
    ~PvXMLChildElements() { node().~QDomNode(); }

    //! Where the walk stands: at the first matching child before it moved on.
    [[nodiscard]] Iterator begin() { return Iterator(this); }
    //! The end of the walk.
    [[nodiscard]] End end() const { return {}; }

    //! The first child element of \a parent named \a tag, as QDomNode::firstChildElement() finds it.
    [[nodiscard]] static QDomElement first(const QDomElement& parent, const QString& tag);

private:
    [[nodiscard]] const QDomNode& node() const { return *std::launder(reinterpret_cast<const QDomNode*>(m_slots[m_current])); }
    void advance()
    {
        step();
        skipToMatch();
    }
    void step()
    {
        // The next node is made in the free slot straight from nextSibling()'s result and the
        // current one dropped, rather than a temporary assigned over it (a count more each way).
        const int next = 1 - m_current;
        new (m_slots[next]) QDomNode(node().nextSibling());
        node().~QDomNode();
        m_current = next;
    }
    void skipToMatch()
    {
        while (!node().isNull() && !(node().isElement() && (m_tag.isEmpty() || hasTag())))
            step();
    }
    [[nodiscard]] bool hasTag() const;

    alignas(QDomNode) unsigned char m_slots[2][sizeof(QDomNode)];
    int m_current = 0;
    QString m_tag;
};
