#pragma once

#include "PvDistanceUnit.h"
#include "PvProductClassification.h"
#include "PvProductClassificationGroup.h"
#include "PvProductType.h"
#include "pvproductproperties_export.h"

#include <QList>
#include <QString>
#include <QStringList>

/*!
 * Answers the choosers' questions over a list of classifications: which groups exist, which
 * sizes a group offers, which product type is a group in a size. Every query walks the list
 * in its order, so the earlier classification wins.
 */
class PVPRODUCTPROPERTIES_EXPORT PvProductClassificationManager
{
public:
    PvProductClassificationManager();
    //! A manager over \a classifications, in that order.
    explicit PvProductClassificationManager(const QList<PvProductClassification>& classifications);
    //! Plain values; copies copy the list.
    //! @{
    PvProductClassificationManager(const PvProductClassificationManager& other);
    PvProductClassificationManager(PvProductClassificationManager&& other) noexcept;
    PvProductClassificationManager& operator=(const PvProductClassificationManager& other);
    PvProductClassificationManager& operator=(PvProductClassificationManager&& other) noexcept;
    virtual ~PvProductClassificationManager();
    //! @}

    //! The classifications, in order.
    [[nodiscard]] QList<PvProductClassification> classifications() const { return m_classifications; }

    //! The distinct groups in the order they first appear.
    [[nodiscard]] QList<PvProductClassificationGroup> classificationGroups() const;
    //! The product type of \a group in the size named \a name in \a unit; empty when there is none.
    [[nodiscard]] PvProductType type(const PvProductClassificationGroup& group, const QString& name, const PvDistanceUnit& unit) const;
    //! The size name of \a productType in \a unit; empty when it is not listed.
    [[nodiscard]] QString classificationName(const PvProductType& productType, const PvDistanceUnit& unit) const;
    //! The size names of \a group, without duplicates.
    [[nodiscard]] QStringList classificationNames(const PvProductClassificationGroup& group, const PvDistanceUnit& unit) const;
    //! The group of \a productType; an empty group when it is not listed.
    [[nodiscard]] PvProductClassificationGroup classificationGroup(const PvProductType& productType) const;
    /*!
     * The product of group \a groupValue whose diagonal is nearest to that of \a productType
     * (to 0 when \a productType is not listed, which picks the smallest); the earlier one on a tie.
     */
    [[nodiscard]] PvProductType closestProduct(const PvProductType& productType, const QString& groupValue) const;

private:
    [[nodiscard]] const PvProductClassification* find(const PvProductType& productType) const;

    QList<PvProductClassification> m_classifications;
};
