#include "PvPreview3DDescription.h"

#include "PvBasisSettings.h"
#include "PvBlockPool.h"
#include "PvValuePool.h"
#include "PvXMLChildren.h"
#include "PvXMLParser.h"
#include "PvXMLChildElements.h"

#include <QCoreApplication>
#include <QSharedData>
#include <QUrlQuery>
#include <QVector3D>

namespace {
struct Camera
{
    QVector3D position;
    QVector3D lookAt;
};

Camera readCamera(const QDomElement& element)
{
    return { PvXMLParser::readVector3D(PvXMLChildElements::first(element, QStringLiteral("position"))),
        PvXMLParser::readVector3D(PvXMLChildElements::first(element, QStringLiteral("lookAt"))) };
}

QString numberText(float value)
{
    return QString::number(double(value), 'g', 6);
}

// Encoded here so that "+" in exponents reaches the page as "+", not as a blank.
void addItem(QUrlQuery& query, const QString& key, const QString& value)
{
    query.addQueryItem(key, QString::fromLatin1(QUrl::toPercentEncoding(value)));
}
}

class PvPreview3DDescriptionImpl : public QSharedData, public PvBlockPoolAllocated
{
public:
    void readMesh(const QDomElement& element);

    bool flipY = false;
    bool flipX = false;
    int pagesPer3DModel = 0;
    QRectF cupRingRect { 0, 0, 0, 0 };
    QString mesh;
    Camera camera;
    Camera cameraBig;
    QList<PvTextureTarget> textureTargets;
    QSize windowSize { -1, -1 };
};

void PvPreview3DDescriptionImpl::readMesh(const QDomElement& element)
{
    mesh = PvValuePool::shared(PvXMLParser::attribute(element, QStringLiteral("file")));
    flipY = PvXMLParser::boolAttribute(element, QStringLiteral("flipY"), false);
    flipX = PvXMLParser::boolAttribute(element, QStringLiteral("flipX"), false);
    pagesPer3DModel = mesh.isEmpty() ? 0 : PvXMLParser::intAttribute(element, QStringLiteral("pagesPer3DModel"), 1);
}

PvPreview3DDescription::PvPreview3DDescription()
    : d(new PvPreview3DDescriptionImpl)
{
}

PvPreview3DDescription::PvPreview3DDescription(const QDomElement& product)
    : d(new PvPreview3DDescriptionImpl)
{
    init(product);
}

PvPreview3DDescription::PvPreview3DDescription(const PvPreview3DDescription& other) = default;
PvPreview3DDescription::PvPreview3DDescription(PvPreview3DDescription&& other) noexcept = default;
PvPreview3DDescription& PvPreview3DDescription::operator=(const PvPreview3DDescription& other) = default;
PvPreview3DDescription& PvPreview3DDescription::operator=(PvPreview3DDescription&& other) noexcept = default;
PvPreview3DDescription::~PvPreview3DDescription() = default;

void PvPreview3DDescription::init(const QDomElement& product)
{
    const QString previewName = QStringLiteral("preview3D");
    const bool isPreview = product.tagName() == previewName;
    const QDomElement preview = isPreview ? product : PvXMLChildElements::first(product, previewName);
    const QDomElement owner = isPreview ? product.parentNode().toElement() : product;

    if (preview.isNull()) {
        // Most products have no 3D preview; they share one empty description.
        static const QSharedDataPointer<PvPreview3DDescriptionImpl> none(new PvPreview3DDescriptionImpl);
        d = none;
        return;
    }
    d.reset(new PvPreview3DDescriptionImpl);
    const PvXMLChildren children(preview);
    d->readMesh(children.first(u"mesh"));
    d->cupRingRect = PvXMLParser::readRectF(children.first(u"cupRing"), QRectF(0, 0, 0, 0));
    for (const QDomElement& target : children.all(u"textureTarget"))
        d->textureTargets.append(PvTextureTarget(target));
    d->camera = readCamera(children.first(u"camera"));
    d->cameraBig = readCamera(children.first(u"cameraBig"));
    d->windowSize = PvXMLParser::readSize(children.first(u"windowSize"), QSize(-1, -1));

    if (!d->mesh.isEmpty() && d->textureTargets.isEmpty()) {
        qWarning().noquote() << QStringLiteral("3D preview of product \"%1\" has a mesh but no textureTarget; the product gets no 3D preview.")
                                    .arg(PvXMLParser::attribute(owner, QStringLiteral("name")));
        d->mesh.clear();
        d->pagesPer3DModel = 0;
    }
}

QString PvPreview3DDescription::mesh() const { return d->mesh; }
QList<PvTextureTarget> PvPreview3DDescription::textureTargets() const { return d->textureTargets; }
QRectF PvPreview3DDescription::cupRingRect() const { return d->cupRingRect; }
int PvPreview3DDescription::pagesPer3DModel() const { return d->pagesPer3DModel; }
QSize PvPreview3DDescription::windowSize() const { return d->windowSize; }

QUrl PvPreview3DDescription::url(bool big) const
{
    if (d->mesh.isEmpty())
        return QUrl();

    QUrl url;
    if (PvBasisSettings::instance().webEngineType() & 24) {
        url.setScheme(QStringLiteral("http"));
        url.setHost(QStringLiteral("localhost"));
    } else {
        url.setScheme(QStringLiteral("kvp"));
    }
    url.setPath(QStringLiteral("/threejs/productpreview/index.html"));

    const Camera& camera = big ? d->cameraBig : d->camera;
    QUrlQuery query;
    addItem(query, QStringLiteral("mesh"), d->mesh);
    if (d->flipY)
        addItem(query, QStringLiteral("flipY"), QStringLiteral("true"));
    if (d->flipX)
        addItem(query, QStringLiteral("flipX"), QStringLiteral("true"));
    addItem(query, QStringLiteral("cx"), numberText(camera.position.x()));
    addItem(query, QStringLiteral("cy"), numberText(camera.position.y()));
    addItem(query, QStringLiteral("cz"), numberText(camera.position.z()));
    addItem(query, QStringLiteral("ax"), numberText(camera.lookAt.x()));
    addItem(query, QStringLiteral("ay"), numberText(camera.lookAt.y()));
    addItem(query, QStringLiteral("az"), numberText(camera.lookAt.z()));
    addItem(query, QStringLiteral("title"), QCoreApplication::translate("PvPreview3DDescription", "Produktvorschau"));
    // A mesh always comes with a target: init() drops meshes without one.
    addItem(query, QStringLiteral("targetMesh"), d->textureTargets.constFirst().name());
    url.setQuery(query);
    return url;
}
