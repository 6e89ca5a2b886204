#include "PvSpiralConfig.h"

#include "PvProductDiagnostics.h"

#include "PvCSSSkinManager.h"
#include "PvDirectoryConfig.h"
#include "PvXMLParser.h"

#include <QColor>
#include <QMutex>
#include <QMutexLocker>
#include <QPainter>
#include <QTransform>

#include <climits>
#include <cmath>

namespace {
// Sizes come from product files: a picture beyond these bounds is refused, not allocated.
constexpr qint64 maxPictureSide = 32767;
constexpr qint64 maxPicturePixels = qint64(1) << 26;

bool isDrawableSize(qint64 width, qint64 height)
{
    return width >= 1 && height >= 1 && width <= maxPictureSide && height <= maxPictureSide
        && width * height <= maxPicturePixels;
}

int clampedToInt(qint64 value)
{
    return int(qBound(qint64(INT_MIN), value, qint64(INT_MAX)));
}

// One colour for every instance: the hook pictures follow the skin together.
bool exchangeRememberedHookColour(const QColor& colour)
{
    static QMutex mutex;
    static QColor remembered;
    const QMutexLocker locker(&mutex);
    const bool same = remembered == colour;
    remembered = colour;
    return same;
}
}

PvSpiralConfig::PvSpiralConfig() = default;

PvSpiralConfig::PvSpiralConfig(const QDomElement& element)
    : m_count(PvXMLParser::intAttribute(element, QStringLiteral("count"), 0))
    , m_hookWidth(PvXMLParser::intAttribute(element, QStringLiteral("hookWidth"), 0))
    , m_hookHeight(PvXMLParser::intAttribute(element, QStringLiteral("hookHeight"), 0))
    , m_loopHeight(PvXMLParser::intAttribute(element, QStringLiteral("loopHeight"), 150))
    , m_loopWidth(PvXMLParser::intAttribute(element, QStringLiteral("loopWidth"), 54))
    , m_loopDistance(PvXMLParser::intAttribute(element, QStringLiteral("loopDistance"), 30))
    , m_variant(PvXMLParser::attribute(element, QStringLiteral("variant"), QStringLiteral("spiralbinding-one-loop-vertical.png")))
{
    readLoopImages(element.firstChildElement(QStringLiteral("loopImages")));
    if (PvProductDiagnostics::listening() && element.hasAttribute(QStringLiteral("hookWidth")) != element.hasAttribute(QStringLiteral("hookHeight")))
        PvProductDiagnostics::report(PvDiagnostic::Error, element, QStringLiteral("a hook needs both \"hookWidth\" and \"hookHeight\"; without either there is no hook"));
}

PvSpiralConfig::PvSpiralConfig(const PvSpiralConfig& other) = default;
PvSpiralConfig::PvSpiralConfig(PvSpiralConfig&& other) noexcept = default;
PvSpiralConfig& PvSpiralConfig::operator=(const PvSpiralConfig& other) = default;
PvSpiralConfig& PvSpiralConfig::operator=(PvSpiralConfig&& other) noexcept = default;
PvSpiralConfig::~PvSpiralConfig() = default;

void PvSpiralConfig::readLoopImages(const QDomElement& element)
{
    const QString loopImage = QStringLiteral("loopImage");
    for (QDomElement child = element.firstChildElement(loopImage); !child.isNull(); child = child.nextSiblingElement(loopImage)) {
        const QString colour = PvXMLParser::attribute(child, QStringLiteral("variant"));
        const QString file = PvXMLParser::attribute(child, QStringLiteral("imagePath"));
        if (!colour.isEmpty() && !file.isEmpty())
            m_loopImages.insert(colour, file);
    }
}

bool PvSpiralConfig::operator==(const PvSpiralConfig& other) const
{
    // Loop sizes, picture and colours are looks, not the spiral's identity.
    return m_count == other.m_count && m_hookWidth == other.m_hookWidth && m_hookHeight == other.m_hookHeight;
}

bool PvSpiralConfig::operator<(const PvSpiralConfig& other) const
{
    if (m_count < other.m_count)
        return true;
    // This width against the other's height is deliberate, not a typo; keep it.
    if (m_hookWidth < other.m_hookHeight)
        return true;
    return m_hookHeight < other.m_hookHeight;
}

void PvSpiralConfig::setSpiralColor(const QString& colour)
{
    const auto it = m_loopImages.constFind(colour);
    if (it != m_loopImages.cend())
        m_variant = *it;
}

QSize PvSpiralConfig::spiralSize(Qt::Orientation orientation) const
{
    const int length = clampedToInt(qint64(m_count) * m_loopWidth + (qint64(m_count) - 1) * m_loopDistance);
    switch (orientation) {
    case Qt::Horizontal:
        return QSize(length, m_loopHeight);
    case Qt::Vertical:
        return QSize(m_loopHeight, length);
    }
    return QSize(-1, -1);
}

QImage PvSpiralConfig::bindingLoopImage() const
{
    if (!m_loopImageCache.isNull())
        return m_loopImageCache;
    if (!isDrawableSize(m_loopWidth, m_loopHeight))
        return QImage();
    const QImage loaded(PvDirectoryConfig::instance().thumbnailsDir().absoluteFilePath(m_variant));
    if (loaded.isNull())
        return QImage();
    m_loopImageCache = loaded.scaled(m_loopWidth, m_loopHeight, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return m_loopImageCache;
}

QImage PvSpiralConfig::spiralImage(Qt::Orientation orientation) const
{
    switch (orientation) {
    case Qt::Horizontal:
        return spiralBindingLoopHorizontal(m_count);
    case Qt::Vertical:
        return spiralBindingLoopVertical(m_count);
    }
    return QImage();
}

QImage PvSpiralConfig::spiralBindingLoopHorizontal(int loops) const
{
    const QImage loop = bindingLoopImage();
    const qint64 loopWidth = loop.width();
    const qint64 width = loopWidth * loops + (qint64(loops) - 1) * m_loopWidth;
    const qint64 height = loop.height();
    if (!isDrawableSize(width, height))
        return QImage();

    QImage strip(int(width), int(height), QImage::Format_ARGB32_Premultiplied);
    if (strip.isNull())
        return QImage();
    strip.fill(Qt::transparent);

    const bool hasGap = hasHook();
    const double gapLeft = std::trunc(double(width) * 0.5 - m_hookWidth * 0.5);
    const double gapRight = std::trunc(double(width) * 0.5 + m_hookWidth * 0.5);
    QPainter painter(&strip);
    for (qint64 i = 0; i < loops; ++i) {
        const qint64 x = (loopWidth + m_loopWidth) * i;
        if (hasGap && double(x + m_loopWidth) >= gapLeft && double(x) <= gapRight)
            continue;
        painter.drawImage(QPoint(int(x), 0), loop);
    }
    return strip;
}

QImage PvSpiralConfig::spiralBindingLoopVertical(int loops) const
{
    const QImage strip = spiralBindingLoopHorizontal(loops);
    if (strip.isNull())
        return QImage();
    return strip.transformed(QTransform().rotate(90), Qt::SmoothTransformation);
}

QImage PvSpiralConfig::spiralHookImage() const
{
    const QColor colour = PvCSSSkinManager::instance().backgroundColor();
    const qint64 width = m_hookWidth;
    const qint64 height = 2 * qint64(m_hookHeight);
    const bool sameColour = exchangeRememberedHookColour(colour);
    if (!m_hookImageCache.isNull() && m_hookImageCache.width() == width && m_hookImageCache.height() == height && sameColour)
        return m_hookImageCache;

    m_hookImageCache = QImage();
    if (!isDrawableSize(width, height))
        return QImage();
    QImage hook(int(width), int(height), QImage::Format_ARGB32_Premultiplied);
    if (hook.isNull())
        return QImage();
    hook.fill(Qt::transparent);
    {
        QPainter painter(&hook);
        painter.setClipRect(hook.rect());
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QBrush(colour, Qt::SolidPattern));
        painter.drawEllipse(QRectF(0, 0, double(width - 2), double(height - 2)));
    }
    m_hookImageCache = hook;
    return m_hookImageCache;
}
