#include "PvDistance.h"

#include <QDebug>

PvDistance PvDistance::to(PvDistanceUnit unit) const
{
    if (unit == m_unit || unit.millimetres() == 0.0)
        return PvDistance(m_value, unit);
    return PvDistance(m_value * m_unit.millimetres() / unit.millimetres(), unit);
}

QDebug operator<<(QDebug debug, const PvDistance& distance)
{
    const QDebugStateSaver saver(debug);
    debug.nospace() << distance.value() << ' ' << distance.unit().humanReadableName();
    return debug;
}
