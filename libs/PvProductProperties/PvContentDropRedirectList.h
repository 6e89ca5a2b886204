#pragma once

#include "pvproductproperties_export.h"

#include <QDomElement>
#include <QList>
#include <QMap>

/*! Says that content dropped on one page lands on another page; read from "contentredirects". */
class PVPRODUCTPROPERTIES_EXPORT PvContentDropRedirectList
{
public:
    PvContentDropRedirectList() = default;
    //! Reads the "redirect" children of a "contentredirects" element.
    explicit PvContentDropRedirectList(const QDomElement& contentredirects);
    //! Plain values.
    //! @{
    PvContentDropRedirectList(const PvContentDropRedirectList&) = default;
    PvContentDropRedirectList(PvContentDropRedirectList&&) noexcept = default;
    PvContentDropRedirectList& operator=(const PvContentDropRedirectList&) = default;
    PvContentDropRedirectList& operator=(PvContentDropRedirectList&&) noexcept = default;
    //! @}
    virtual ~PvContentDropRedirectList() = default;

    //! The page that content dropped on \a page goes to: its redirect target, or \a page itself.
    [[nodiscard]] int targetPage(int page) const;

    //! A run of pages whose content goes to one target page.
    struct Range
    {
        qint64 first = 0; //!< The first page of the run.
        qint64 last = 0; //!< The last page of the run.
        int target = 0; //!< The page their content goes to.
    };
    //! Every redirected run of pages, in page order; neighbouring runs with one target are one range.
    [[nodiscard]] QList<Range> ranges() const;

private:
    using Runs = QMap<qint64, int>;
    static void read(const QDomElement& contentredirect, Runs* runs);
    static void redirect(qint64 first, qint64 last, int target, Runs* runs);

    // Ranges, not pages: each entry starts a run of pages that share the target (or none, -1)
    // up to the next entry, so a file costs memory by its size, not by the widths it writes.
    // Built in a map, kept as a sorted list: one allocation, which products share.
    QList<std::pair<qint64, int>> m_runs;
};
