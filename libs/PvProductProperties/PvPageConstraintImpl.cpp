#include "PvPageConstraintImpl.h"

#include "PvXMLBuilder.h"

#include <QStringList>

namespace {
template <typename T>
bool halvesMatch(const PvEmptyMeansAllSet<T>& mine, const PvEmptyMeansAllSet<T>& theirs)
{
    return mine.isEmpty() || theirs.isEmpty() || mine.sharesRealKeysWith(theirs);
}

template <typename T>
QStringList names(const PvEmptyMeansAllSet<T>& set)
{
    QStringList texts;
    for (const T& value : set.sortedByValue())
        texts.append(value.encodeCSV());
    return texts;
}
}

PvPageConstraintImpl::~PvPageConstraintImpl() = default;

void PvPageConstraintImpl::setPageTypes(const PvPageType& type)
{
    m_pageTypes.clear();
    m_pageTypes.extendTo(type);
}

void PvPageConstraintImpl::addPageType(const PvPageType& type)
{
    m_pageTypes.extendTo(type);
}

void PvPageConstraintImpl::setIntendedAlignment(const PvPageAlignment& alignment)
{
    m_intendedAlignments.clear();
    m_intendedAlignments.extendTo(alignment);
}

void PvPageConstraintImpl::addIntendedAlignment(const PvPageAlignment& alignment)
{
    m_intendedAlignments.extendTo(alignment);
}

bool PvPageConstraintImpl::matches(const PvPageConstraintImpl& other) const
{
    return matchesPageType(other) && matchesAlignment(other);
}

bool PvPageConstraintImpl::matchesPageType(const PvPageConstraintImpl& other) const
{
    return halvesMatch(m_pageTypes, other.m_pageTypes);
}

bool PvPageConstraintImpl::matchesAlignment(const PvPageConstraintImpl& other) const
{
    return halvesMatch(m_intendedAlignments, other.m_intendedAlignments);
}

bool PvPageConstraintImpl::isPageType(const PvPageType& type) const
{
    if (!type.isValid())
        return false;
    const auto bits = PvEmptyMeansAllSet<PvPageType>::decompose(type);
    return m_pageTypes.isEmpty() || bits.isEmpty() || m_pageTypes.sharesRealKeysWith(bits);
}

bool PvPageConstraintImpl::sharesPageType(const PvPageType& type) const
{
    // Unlike isPageType(), an empty set answers false: callers look for explicit mentions.
    return type.isValid() && m_pageTypes.sharesRealKeysWith(PvEmptyMeansAllSet<PvPageType>::decompose(type));
}

bool PvPageConstraintImpl::operator==(const PvPageConstraintImpl& other) const
{
    return m_pageTypes == other.m_pageTypes && m_intendedAlignments == other.m_intendedAlignments;
}

void PvPageConstraintImpl::toXml(QDomElement& parent) const
{
    for (const QString& name : names(m_pageTypes))
        PvXMLBuilder::buildDomElement(parent, QStringLiteral("pagetype"), name);
    for (const QString& name : names(m_intendedAlignments))
        PvXMLBuilder::buildDomElement(parent, QStringLiteral("intendedAlignment"), name);
}

QString PvPageConstraintImpl::describe() const
{
    const QString separator = QStringLiteral(", ");
    return QStringLiteral("SeitenTypen: {%1} Alignment {%2}")
        .arg(names(m_pageTypes).join(separator), names(m_intendedAlignments).join(separator));
}

QString PvPageConstraintImpl::describeDifference(const PvPageConstraintImpl& other) const
{
    if (matches(other))
        return QStringLiteral("Page Constraints Okay");
    return QStringLiteral("Page Constraints differ: PageType: %1, Alignment %2")
        .arg(int(matchesPageType(other)))
        .arg(int(matchesAlignment(other)));
}
