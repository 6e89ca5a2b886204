#pragma once

#include "pvproductproperties_export.h"

#include <QDomElement>
#include <QMap>

/*! Says that content dropped on one page lands on another page; read from "contentredirects". */
class PVPRODUCTPROPERTIES_EXPORT PvContentDropRedirectList
{
public:
    PvContentDropRedirectList() = default;
    explicit PvContentDropRedirectList(const QDomElement& contentredirects);
    PvContentDropRedirectList(const PvContentDropRedirectList&) = default;
    PvContentDropRedirectList(PvContentDropRedirectList&&) noexcept = default;
    PvContentDropRedirectList& operator=(const PvContentDropRedirectList&) = default;
    PvContentDropRedirectList& operator=(PvContentDropRedirectList&&) noexcept = default;
    virtual ~PvContentDropRedirectList() = default;

    //! The page that content dropped on \a page goes to: its redirect target, or \a page itself.
    [[nodiscard]] int targetPage(int page) const;

private:
    void read(const QDomElement& contentredirect);
    void redirect(qint64 first, qint64 last, int target);
    [[nodiscard]] int targetAt(qint64 page) const;

    // Ranges, not pages: each key starts a run of pages that share the target (or none, -1)
    // up to the next key, so a file costs memory by its size, not by the widths it writes.
    QMap<qint64, int> m_runs;
};
