#include "PvProductClassificationManager.h"

#include <cmath>
#include <limits>

#include <QSet>

PvProductClassificationManager::PvProductClassificationManager() = default;

PvProductClassificationManager::PvProductClassificationManager(const QList<PvProductClassification>& classifications)
    : m_classifications(classifications)
{
}

PvProductClassificationManager::PvProductClassificationManager(const PvProductClassificationManager& other) = default;
PvProductClassificationManager::PvProductClassificationManager(PvProductClassificationManager&& other) noexcept = default;
PvProductClassificationManager& PvProductClassificationManager::operator=(const PvProductClassificationManager& other) = default;
PvProductClassificationManager& PvProductClassificationManager::operator=(PvProductClassificationManager&& other) noexcept = default;
PvProductClassificationManager::~PvProductClassificationManager() = default;

const PvProductClassification* PvProductClassificationManager::find(const PvProductType& productType) const
{
    for (const PvProductClassification& classification : m_classifications) {
        if (classification.productType() == productType)
            return &classification;
    }
    return nullptr;
}

QList<PvProductClassificationGroup> PvProductClassificationManager::classificationGroups() const
{
    QList<PvProductClassificationGroup> groups;
    QSet<QString> seen;
    for (const PvProductClassification& classification : m_classifications) {
        const PvProductClassificationGroup group = classification.group();
        if (!seen.contains(group.value())) {
            seen.insert(group.value());
            groups.append(group);
        }
    }
    return groups;
}

PvProductType PvProductClassificationManager::type(const PvProductClassificationGroup& group, const QString& name, const PvDistanceUnit& unit) const
{
    for (const PvProductClassification& classification : m_classifications) {
        if (classification.group() == group && classification.visibleName(unit) == name)
            return classification.productType();
    }
    return PvProductType();
}

QString PvProductClassificationManager::classificationName(const PvProductType& productType, const PvDistanceUnit& unit) const
{
    const PvProductClassification* classification = find(productType);
    return classification ? classification->visibleName(unit) : QString();
}

QStringList PvProductClassificationManager::classificationNames(const PvProductClassificationGroup& group, const PvDistanceUnit& unit) const
{
    QStringList names;
    for (const PvProductClassification& classification : m_classifications) {
        if (classification.group() != group)
            continue;
        const QString name = classification.visibleName(unit);
        if (!names.contains(name))
            names.append(name);
    }
    return names;
}

PvProductClassificationGroup PvProductClassificationManager::classificationGroup(const PvProductType& productType) const
{
    const PvProductClassification* classification = find(productType);
    return classification ? classification->group() : PvProductClassificationGroup();
}

PvProductType PvProductClassificationManager::closestProduct(const PvProductType& productType, const QString& groupValue) const
{
    const PvProductClassification* reference = find(productType);
    const double diagonal = reference ? reference->sizeDiagonal() : 0.0;
    const PvProductClassificationGroup group(groupValue);
    double bestDistance = std::numeric_limits<double>::max();
    PvProductType closest;
    for (const PvProductClassification& classification : m_classifications) {
        if (classification.group() != group)
            continue;
        const double distance = std::abs(classification.sizeDiagonal() - diagonal);
        // Strictly smaller: on a tie the earlier product stays.
        if (distance < bestDistance) {
            bestDistance = distance;
            closest = classification.productType();
        }
    }
    return closest;
}
