#pragma once

#include "pvproductproperties_export.h"

#include <QDomElement>
#include <QList>
#include <QString>

/*! On which pages the user may not turn the page in the editor. */
class PVPRODUCTPROPERTIES_EXPORT PvUserPageTiltConfig
{
public:
    PvUserPageTiltConfig() = default;
    //! Reads a "pageTilt" element; a null element keeps the defaults (nothing disabled).
    explicit PvUserPageTiltConfig(const QDomElement& element);

    //! Whether turning pages is disabled ("disabled").
    [[nodiscard]] bool isDisabled() const { return m_disabled; }
    //! The pages it is disabled on; empty for every page.
    [[nodiscard]] QList<int> pages() const { return m_pages; }
    //! Disabling without a page list disables every page.
    [[nodiscard]] bool isPageRotationDisabled(int pageNr) const;
    //! The decimal numbers of a comma-separated list; parts that are no number are dropped.
    [[nodiscard]] QList<int> decodeIntList(const QString& text) const;

private:
    bool m_disabled = false;
    QList<int> m_pages;
};
