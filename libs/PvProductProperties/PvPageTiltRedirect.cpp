#include "PvPageTiltRedirect.h"

#include <QDebugStateSaver>

#include <tuple>

PvPageTiltRedirect::PvPageTiltRedirect(int sourcePageNr, int targetPageNr, int angleInvert)
    : m_sourcePageNr(sourcePageNr)
    , m_targetPageNr(targetPageNr)
    , m_angleInvert(angleInvert)
{
}

bool PvPageTiltRedirect::operator==(const PvPageTiltRedirect& other) const
{
    return std::tie(m_sourcePageNr, m_targetPageNr, m_angleInvert)
        == std::tie(other.m_sourcePageNr, other.m_targetPageNr, other.m_angleInvert);
}

QDebug operator<<(QDebug debug, const PvPageTiltRedirect& redirect)
{
    const QDebugStateSaver saver(debug);
    debug.nospace() << "PvPageTiltRedirect(" << redirect.sourcePageNr() << " -> " << redirect.targetPageNr()
                    << ", " << redirect.angleInvert() << ')';
    return debug;
}
