#pragma once

#include "PvEmptyMeansAllSet.h"
#include "PvPageAlignment.h"
#include "PvPageType.h"
#include "pvproductproperties_export.h"

#include <QDomElement>
#include <QSharedData>
#include <QString>

/*!
 * The shared data of a PvPageConstraint: the page types and the intended alignments for which
 * something applies. An empty set puts no restriction on its half.
 */
class PVPRODUCTPROPERTIES_EXPORT PvPageConstraintImpl : public QSharedData
{
public:
    PvPageConstraintImpl() = default;
    PvPageConstraintImpl(const PvPageConstraintImpl& other) = default;
    PvPageConstraintImpl& operator=(const PvPageConstraintImpl& other) = delete;
    virtual ~PvPageConstraintImpl();

    void setPageTypes(const PvPageType& type);
    void addPageType(const PvPageType& type);
    [[nodiscard]] PvEmptyMeansAllSet<PvPageType> pageTypes() const { return m_pageTypes; }

    void setIntendedAlignment(const PvPageAlignment& alignment);
    void addIntendedAlignment(const PvPageAlignment& alignment);
    [[nodiscard]] PvEmptyMeansAllSet<PvPageAlignment> intendedAlignments() const { return m_intendedAlignments; }

    //! Both halves match: an empty set on either side, or a shared bit.
    [[nodiscard]] bool matches(const PvPageConstraintImpl& other) const;
    [[nodiscard]] bool matchesPageType(const PvPageConstraintImpl& other) const;
    [[nodiscard]] bool matchesAlignment(const PvPageConstraintImpl& other) const;

    //! May the constraint apply to a page of \a type; an empty set accepts every valid type.
    [[nodiscard]] bool isPageType(const PvPageType& type) const;
    //! Does the constraint name a bit of \a type explicitly; an empty set names none.
    [[nodiscard]] bool sharesPageType(const PvPageType& type) const;

    [[nodiscard]] bool operator==(const PvPageConstraintImpl& other) const;

    //! Appends one "pagetype" and one "intendedAlignment" child per element to \a parent.
    void toXml(QDomElement& parent) const;
    [[nodiscard]] QString describe() const;
    [[nodiscard]] QString describeDifference(const PvPageConstraintImpl& other) const;

private:
    PvEmptyMeansAllSet<PvPageType> m_pageTypes;
    PvEmptyMeansAllSet<PvPageAlignment> m_intendedAlignments;
};
