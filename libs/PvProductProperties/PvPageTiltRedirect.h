#pragma once

#include "pvproductproperties_export.h"

#include <QDebug>

/*! The tilt of one page taken over from another page, multiplied by an invert factor. */
class PVPRODUCTPROPERTIES_EXPORT PvPageTiltRedirect
{
public:
    PvPageTiltRedirect() = default;
    PvPageTiltRedirect(int sourcePageNr, int targetPageNr, int angleInvert);

    [[nodiscard]] int sourcePageNr() const { return m_sourcePageNr; }
    [[nodiscard]] int targetPageNr() const { return m_targetPageNr; }
    //! Factor applied to the redirected angle: 1 keeps it, -1 inverts it.
    [[nodiscard]] int angleInvert() const { return m_angleInvert; }

    [[nodiscard]] bool operator==(const PvPageTiltRedirect& other) const;
    [[nodiscard]] bool operator!=(const PvPageTiltRedirect& other) const { return !(*this == other); }

private:
    qint32 m_sourcePageNr = 0;
    qint32 m_targetPageNr = 0;
    qint32 m_angleInvert = 0;
};

PVPRODUCTPROPERTIES_EXPORT QDebug operator<<(QDebug debug, const PvPageTiltRedirect& redirect);
