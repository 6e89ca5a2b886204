#pragma once

#include "pvproductproperties_export.h"

#include <QHashFunctions>

#include <QDebug>

/*! The tilt of one page taken over from another page, multiplied by an invert factor. */
class PVPRODUCTPROPERTIES_EXPORT PvPageTiltRedirect
{
public:
    PvPageTiltRedirect() = default;
    //! Page \a targetPageNr takes its tilt from page \a sourcePageNr, times \a angleInvert.
    PvPageTiltRedirect(int sourcePageNr, int targetPageNr, int angleInvert);

    //! The page whose tilt is taken over.
    [[nodiscard]] int sourcePageNr() const { return m_sourcePageNr; }
    //! The page that takes it over.
    [[nodiscard]] int targetPageNr() const { return m_targetPageNr; }
    //! Factor applied to the redirected angle: 1 keeps it, -1 inverts it.
    [[nodiscard]] int angleInvert() const { return m_angleInvert; }

    //! Equal in every field.
    [[nodiscard]] bool operator==(const PvPageTiltRedirect& other) const;
    //! Differs in some field.
    [[nodiscard]] bool operator!=(const PvPageTiltRedirect& other) const { return !(*this == other); }
    //! A hash of every field, for hash tables.
    friend size_t qHash(const PvPageTiltRedirect& redirect, size_t seed = 0) noexcept
    {
        return qHashMulti(seed, redirect.m_sourcePageNr, redirect.m_targetPageNr, redirect.m_angleInvert);
    }

private:
    qint32 m_sourcePageNr = 0;
    qint32 m_targetPageNr = 0;
    qint32 m_angleInvert = 0;
};

PVPRODUCTPROPERTIES_EXPORT QDebug operator<<(QDebug debug, const PvPageTiltRedirect& redirect);
