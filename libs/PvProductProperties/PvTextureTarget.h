#pragma once

#include "pvproductproperties_export.h"

#include <QDomElement>
#include <QRectF>
#include <QString>

/*! Which rectangle of which page is laid onto a named part of a 3D model. */
class PVPRODUCTPROPERTIES_EXPORT PvTextureTarget
{
public:
    PvTextureTarget() = default;
    //! Reads a "textureTarget" element: "name", the rectangle attributes and "page".
    explicit PvTextureTarget(const QDomElement& element);

    //! The name of the model part that receives the texture.
    [[nodiscard]] QString name() const { return m_name; }
    //! The part of the page's picture that is used.
    [[nodiscard]] QRectF rect() const { return m_rect; }
    //! The index of the page whose picture is used.
    [[nodiscard]] int page() const { return m_page; }

    //! Equal in every field.
    friend bool operator==(const PvTextureTarget& a, const PvTextureTarget& b)
    {
        return a.m_name == b.m_name && a.m_rect == b.m_rect && a.m_page == b.m_page;
    }
    //! Differs in some field.
    friend bool operator!=(const PvTextureTarget& a, const PvTextureTarget& b) { return !(a == b); }

private:
    QString m_name;
    QRectF m_rect;
    int m_page = 0;
};
