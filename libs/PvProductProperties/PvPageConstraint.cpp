#include "PvPageConstraint.h"

#include "PvPageConstraintImpl.h"
#include "PvPageContext.h"

PvPageConstraint::PvPageConstraint()
    : d(new PvPageConstraintImpl)
{
}

PvPageConstraint::PvPageConstraint(const PvPageContext& context)
    : PvPageConstraint(context.pageType(), context.alignment())
{
}

PvPageConstraint::PvPageConstraint(const PvPageType& type, const PvPageAlignment& alignment)
    : d(new PvPageConstraintImpl)
{
    d->setPageTypes(type);
    d->setIntendedAlignment(alignment);
}

PvPageConstraint::PvPageConstraint(const PvPageType& type)
    : PvPageConstraint(type, PvPageAlignment())
{
}

PvPageConstraint::PvPageConstraint(const PvPageConstraint& other) = default;
PvPageConstraint::PvPageConstraint(PvPageConstraint&& other) noexcept = default;
PvPageConstraint& PvPageConstraint::operator=(const PvPageConstraint& other) = default;
PvPageConstraint& PvPageConstraint::operator=(PvPageConstraint&& other) noexcept = default;
PvPageConstraint::~PvPageConstraint() = default;

void PvPageConstraint::setPageTypes(const PvPageType& type)
{
    d->setPageTypes(type);
}

void PvPageConstraint::addPageType(const PvPageType& type)
{
    d->addPageType(type);
}

PvEmptyMeansAllSet<PvPageType> PvPageConstraint::pageTypes() const
{
    return d->pageTypes();
}

void PvPageConstraint::setIntendedAlignment(const PvPageAlignment& alignment)
{
    d->setIntendedAlignment(alignment);
}

void PvPageConstraint::addIntendedAlignment(const PvPageAlignment& alignment)
{
    d->addIntendedAlignment(alignment);
}

PvEmptyMeansAllSet<PvPageAlignment> PvPageConstraint::intendedAlignments() const
{
    return d->intendedAlignments();
}

bool PvPageConstraint::matches(const PvPageConstraint& other) const
{
    return d->matches(*other.d);
}

bool PvPageConstraint::isPageType(const PvPageType& type) const
{
    return d->isPageType(type);
}

bool PvPageConstraint::sharesPageType(const PvPageType& type) const
{
    return d->sharesPageType(type);
}

bool PvPageConstraint::operator==(const PvPageConstraint& other) const
{
    return d.constData() == other.d.constData() || *d == *other.d;
}

void PvPageConstraint::toXml(QDomElement& parent) const
{
    d->toXml(parent);
}

QString PvPageConstraint::describe() const
{
    return d->describe();
}

QString PvPageConstraint::describeDifference(const PvPageConstraint& other) const
{
    return d->describeDifference(*other.d);
}
