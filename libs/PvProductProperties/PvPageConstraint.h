#pragma once

#include "PvEmptyMeansAllSet.h"
#include "PvPageAlignment.h"
#include "PvPageType.h"
#include "pvproductproperties_export.h"

#include <QDomElement>
#include <QSharedDataPointer>
#include <QString>

class PvPageConstraintImpl;
class PvPageContext;

/*!
 * For which pages of a product something applies: a set of page types and a set of intended
 * alignments, where an empty set means every page type or every alignment. A value: copies
 * share their data until one of them changes.
 */
class PVPRODUCTPROPERTIES_EXPORT PvPageConstraint
{
public:
    //! Matches every page.
    PvPageConstraint();
    //! Applies to pages of the context's page type and alignment.
    explicit PvPageConstraint(const PvPageContext& context);
    //! Applies to pages of \a type and \a alignment.
    PvPageConstraint(const PvPageType& type, const PvPageAlignment& alignment);
    //! Any alignment.
    explicit PvPageConstraint(const PvPageType& type);
    //! Copies share their data until one of them changes.
    //! @{
    PvPageConstraint(const PvPageConstraint& other);
    PvPageConstraint(PvPageConstraint&& other) noexcept;
    PvPageConstraint& operator=(const PvPageConstraint& other);
    PvPageConstraint& operator=(PvPageConstraint&& other) noexcept;
    virtual ~PvPageConstraint();
    //! @}

    //! Replaces the page types by the bits of \a type; 0 leaves the set empty, i.e. all.
    void setPageTypes(const PvPageType& type);
    //! Adds the bits of \a type to the page types.
    void addPageType(const PvPageType& type);
    //! The page types; empty means every page type.
    [[nodiscard]] PvEmptyMeansAllSet<PvPageType> pageTypes() const;

    //! Replaces the alignments by the bits of \a alignment; 0 leaves the set empty, i.e. all.
    void setIntendedAlignment(const PvPageAlignment& alignment);
    //! Adds the bits of \a alignment to the alignments.
    void addIntendedAlignment(const PvPageAlignment& alignment);
    //! The intended alignments; empty means every alignment.
    [[nodiscard]] PvEmptyMeansAllSet<PvPageAlignment> intendedAlignments() const;

    //! Page types and alignments each match: an empty set on either side, or a shared bit.
    [[nodiscard]] bool matches(const PvPageConstraint& other) const;
    //! May the constraint apply to a page of \a type; false for an invalid type.
    [[nodiscard]] bool isPageType(const PvPageType& type) const;
    //! Does the constraint name a bit of \a type explicitly; never for an empty page type set.
    [[nodiscard]] bool sharesPageType(const PvPageType& type) const;

    //! The same page type and alignment sets.
    [[nodiscard]] bool operator==(const PvPageConstraint& other) const;
    //! Differs in one of the sets.
    [[nodiscard]] bool operator!=(const PvPageConstraint& other) const { return !(*this == other); }

    //! Appends "pagetype" and then "intendedAlignment" children; an unrestricted constraint writes none.
    void toXml(QDomElement& parent) const;
    //! One-line debugging text.
    [[nodiscard]] QString describe() const;
    //! Debugging text of which half of matches() fails, if any.
    [[nodiscard]] QString describeDifference(const PvPageConstraint& other) const;

private:
    QSharedDataPointer<PvPageConstraintImpl> d;
};
