#include "PvProductPicture.h"

#include "PvPagePainter.h"
#include "PvPictureLayout.h"
#include "PvPictureLegend.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSvgGenerator>

namespace {
QString suffixOf(const QString& fileName)
{
    return QFileInfo(fileName).suffix().toLower();
}

QString writePng(const PvPictureLayout& layout, const QString& fileName)
{
    QImage image(layout.size, QImage::Format_RGB32);
    if (image.isNull())
        return QStringLiteral("a picture of %1 x %2 pixels does not fit in memory").arg(layout.size.width()).arg(layout.size.height());
    QPainter painter(&image);
    PvProductPicture::paint(painter, layout);
    painter.end();
    if (!image.save(fileName, "PNG"))
        return QStringLiteral("cannot write %1").arg(fileName);
    return QString();
}

QString writeSvg(const PvPictureLayout& layout, const QString& fileName)
{
    // The generator does not tell whether it could write, so the file is opened here.
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return QStringLiteral("cannot write %1: %2").arg(fileName, file.errorString());
    QSvgGenerator generator;
    generator.setOutputDevice(&file);
    generator.setSize(layout.size);
    generator.setViewBox(QRect(QPoint(0, 0), layout.size));
    generator.setTitle(layout.heading);
    generator.setDescription(QStringLiteral("Pages of the product type %1").arg(layout.productType));
    QPainter painter(&generator);
    PvProductPicture::paint(painter, layout);
    painter.end();
    file.close();
    if (file.error() != QFileDevice::NoError)
        return QStringLiteral("cannot write %1: %2").arg(fileName, file.errorString());
    return QString();
}
}

bool PvProductPicture::isSupportedFileName(const QString& fileName)
{
    const QString suffix = suffixOf(fileName);
    return suffix == QLatin1String("png") || suffix == QLatin1String("svg");
}

void PvProductPicture::paint(QPainter& painter, const PvPictureLayout& layout)
{
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setRenderHint(QPainter::TextAntialiasing, true);
    painter.fillRect(QRect(QPoint(0, 0), layout.size), QColor(245, 245, 245));
    PvPagePainter::paintPages(painter, layout);
    PvPictureLegend::paint(painter, layout);
}

QString PvProductPicture::write(const PvProductTypeDescription& description, int pageCount, const QString& fileName)
{
    if (!isSupportedFileName(fileName))
        return QStringLiteral("%1: a picture is written as .png or .svg").arg(fileName);
    const PvPictureLayout layout = PvPictureLayout::compute(description, pageCount);
    if (!layout.problem.isEmpty())
        return layout.problem;
    return suffixOf(fileName) == QLatin1String("svg") ? writeSvg(layout, fileName) : writePng(layout, fileName);
}
