#pragma once

#include "PvTextureTarget.h"
#include "pvproductproperties_export.h"

#include <QDomElement>
#include <QList>
#include <QRectF>
#include <QSharedDataPointer>
#include <QSize>
#include <QString>
#include <QUrl>

class PvPreview3DDescriptionImpl;

/*!
 * How a product is shown as a rotating 3D model: the model file, the cameras, the window and
 * which page pictures go onto which parts of the model. Builds the URL of the local preview
 * page. An empty mesh means the product has no 3D preview.
 */
class PVPRODUCTPROPERTIES_EXPORT PvPreview3DDescription
{
public:
    PvPreview3DDescription();
    //! Reads the "preview3D" child of a "product" element.
    explicit PvPreview3DDescription(const QDomElement& product);
    //! Copies share their data.
    //! @{
    PvPreview3DDescription(const PvPreview3DDescription& other);
    PvPreview3DDescription(PvPreview3DDescription&& other) noexcept;
    PvPreview3DDescription& operator=(const PvPreview3DDescription& other);
    PvPreview3DDescription& operator=(PvPreview3DDescription&& other) noexcept;
    ~PvPreview3DDescription();
    //! @}

    /*!
     * Reads the "preview3D" child of \a product (or \a product itself when it is the
     * "preview3D" element). The page needs a texture target to name the mesh it paints, so a
     * mesh without any "textureTarget" is dropped with the warning
     *     3D preview of product "\<name\>" has a mesh but no textureTarget; the product gets no 3D preview.
     * where \<name\> is the "name" attribute of the product element.
     */
    void init(const QDomElement& product);

    //! The model file ("file" of "mesh"); empty for no 3D preview.
    [[nodiscard]] QString mesh() const;
    //! Which page pictures go onto which parts of the model.
    [[nodiscard]] QList<PvTextureTarget> textureTargets() const;
    //! Where the ring of a cup lies on its picture; all 0 when not given.
    [[nodiscard]] QRectF cupRingRect() const;
    //! 0 without a mesh; 1 unless the mesh says otherwise.
    [[nodiscard]] int pagesPer3DModel() const;
    //! Invalid unless the file gives a "windowSize".
    [[nodiscard]] QSize windowSize() const;

    /*!
     * The URL of the local preview page with the model, flips, camera (the large window's
     * when \a big), title and target mesh in its query; empty without a mesh. Plain http when
     * the web engine type has bit 8 or 16, otherwise the application's "kvp" scheme.
     */
    [[nodiscard]] QUrl url(bool big) const;

private:
    QSharedDataPointer<PvPreview3DDescriptionImpl> d;
};
