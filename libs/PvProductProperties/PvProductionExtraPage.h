#pragma once

#include "pvproductproperties_export.h"

#include <QDomElement>
#include <QString>

/*! A prepared file printed onto production pages that the customer never designs. */
class PVPRODUCTPROPERTIES_EXPORT PvProductionExtraPage
{
public:
    PvProductionExtraPage();
    //! Reads a "pdf" element: attributes "filename", "type" and "layer".
    explicit PvProductionExtraPage(const QDomElement& pdf);
    //! Plain values.
    //! @{
    PvProductionExtraPage(const PvProductionExtraPage& other);
    PvProductionExtraPage(PvProductionExtraPage&& other) noexcept;
    PvProductionExtraPage& operator=(const PvProductionExtraPage& other);
    PvProductionExtraPage& operator=(PvProductionExtraPage&& other) noexcept;
    virtual ~PvProductionExtraPage();
    //! @}

    //! The file to print ("filename").
    [[nodiscard]] QString filename() const { return m_filename; }
    //! The kind of template the file is ("type").
    [[nodiscard]] QString templateType() const { return m_templateType; }
    //! The layer the file is printed on ("layer", default 0).
    [[nodiscard]] int targetLayer() const { return m_targetLayer; }

    //! The layer is deliberately not compared: the same file on another layer is the same page.
    friend bool operator==(const PvProductionExtraPage& a, const PvProductionExtraPage& b)
    {
        return a.m_filename == b.m_filename && a.m_templateType == b.m_templateType;
    }
    //! Differs in file or template type.
    friend bool operator!=(const PvProductionExtraPage& a, const PvProductionExtraPage& b) { return !(a == b); }

private:
    QString m_filename;
    QString m_templateType;
    int m_targetLayer = 0;
};
