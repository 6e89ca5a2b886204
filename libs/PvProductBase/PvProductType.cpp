#include "PvProductType.h"

#include <QDebug>

QDebug operator<<(QDebug debug, const PvProductType& type)
{
    const QDebugStateSaver saver(debug);
    debug.nospace() << "PvProductType(" << type.name() << ')';
    return debug;
}
