#include "PvSpiralConfig.h"

#include "PvProductDiagnostics.h"

#include "PvCSSSkinManager.h"
#include "PvDirectoryConfig.h"
#include "PvProductPropertiesLogging.h"
#include "PvValuePool.h"
#include "PvXMLParser.h"
#include "PvXMLChildElements.h"

#include <QColor>
#include <QDir>
#include <QMutex>
#include <QMutexLocker>
#include <QPainter>
#include <QTransform>
#include <QtNumeric>

#include <algorithm>
#include <climits>
#include <cmath>
#include <limits>

namespace {
// Sizes come from product files. A spiral loop or hook opening is a few millimetres; one beyond
// 20 cm, or a strip longer than a metre (the longest page edge a bound product has), is a typing
// error: refused, not drawn. The pixel bound keeps any one picture within 16 MB.
constexpr qint64 maxPartSide = 2000;
constexpr qint64 maxStripLength = 10000;
constexpr qint64 maxPicturePixels = qint64(1) << 22;

bool isDrawableSize(qint64 width, qint64 height, qint64 maxWidth, qint64 maxHeight)
{
    return width >= 1 && height >= 1 && width <= maxWidth && height <= maxHeight && width * height <= maxPicturePixels;
}

// Answers whether a picture of that size may be drawn; says why not when it may not.
bool checkPictureSize(const char* picture, qint64 width, qint64 height, qint64 maxWidth, qint64 maxHeight)
{
    if (isDrawableSize(width, height, maxWidth, maxHeight))
        return true;
    // An empty size is "nothing to draw", not a mistake worth a word.
    if (width >= 1 && height >= 1) {
        qCWarning(lcProductProperties, "Spiral %s of %lld x %lld exceeds %lld x %lld or %lld pixels, not drawn", picture,
                  qlonglong(width), qlonglong(height), qlonglong(maxWidth), qlonglong(maxHeight), qlonglong(maxPicturePixels));
    }
    return false;
}

int clampedToInt(qint64 value)
{
    return int(qBound(qint64(INT_MIN), value, qint64(INT_MAX)));
}


// The path in \a element's \a attribute, or \a fallback when it leaves the thumbnails folder.
QString confinedPath(const QDomElement& element, const QString& attribute, const QString& fallback)
{
    const QString path = PvXMLParser::attribute(element, attribute, fallback);
    if (PvSpiralConfig::isPicturePathAllowed(path))
        return path;
    qCWarning(lcProductProperties, "Picture path outside the thumbnails folder refused: \"%s\"", qUtf8Printable(path));
    if (PvProductDiagnostics::listening()) {
        PvProductDiagnostics::report(PvDiagnostic::Error, element,
                                     QStringLiteral("attribute \"%1\": %2 leaves the thumbnails folder; the picture is refused")
                                         .arg(attribute, PvDiagnostics::quoted(path)),
                                     attribute);
    }
    return fallback;
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
{
    const QString defaultVariant = QStringLiteral("spiralbinding-one-loop-vertical.png");
    m_variant = PvValuePool::shared(confinedPath(element, QStringLiteral("variant"), defaultVariant));
    readLoopImages(PvXMLChildElements::first(element, QStringLiteral("loopImages")));
    if (PvProductDiagnostics::listening() && element.hasAttribute(QStringLiteral("hookWidth")) != element.hasAttribute(QStringLiteral("hookHeight")))
        PvProductDiagnostics::report(PvDiagnostic::Error, element, QStringLiteral("a hook needs both \"hookWidth\" and \"hookHeight\"; without either there is no hook"));
}

bool PvSpiralConfig::isPicturePathAllowed(const QString& path)
{
    if (path.startsWith(QLatin1Char('/')) || path.startsWith(QLatin1Char('\\')) || path.startsWith(QLatin1Char(':'))
        || QDir::isAbsolutePath(path) || (path.size() > 1 && path.at(1) == QLatin1Char(':')))
        return false;
    qsizetype start = 0;
    for (qsizetype i = 0; i <= path.size(); ++i) {
        if (i == path.size() || path.at(i) == QLatin1Char('/') || path.at(i) == QLatin1Char('\\')) {
            if (QStringView(path).mid(start, i - start) == QLatin1String(".."))
                return false;
            start = i + 1;
        }
    }
    return true;
}

PvSpiralConfig::PvSpiralConfig(const PvSpiralConfig& other) = default;
PvSpiralConfig::PvSpiralConfig(PvSpiralConfig&& other) noexcept = default;
PvSpiralConfig& PvSpiralConfig::operator=(const PvSpiralConfig& other) = default;
PvSpiralConfig& PvSpiralConfig::operator=(PvSpiralConfig&& other) noexcept = default;
PvSpiralConfig::~PvSpiralConfig() = default;

namespace {
template <typename List>
auto findColour(List& images, const QString& colour)
{
    return std::lower_bound(images.begin(), images.end(), colour, [](const auto& entry, const QString& wanted) { return entry.first < wanted; });
}
}

void PvSpiralConfig::readLoopImages(const QDomElement& element)
{
    const QString loopImage = QStringLiteral("loopImage");
    for (const QDomElement child : PvXMLChildElements(element, loopImage)) {
        const QString colour = PvXMLParser::attribute(child, QStringLiteral("variant"));
        const QString file = confinedPath(child, QStringLiteral("imagePath"), QString());
        if (colour.isEmpty() || file.isEmpty())
            continue;
        // A colour named again takes the later picture.
        const auto it = findColour(m_loopImages, colour);
        if (it != m_loopImages.end() && it->first == colour)
            it->second = PvValuePool::shared(file);
        else
            m_loopImages.insert(it, { PvValuePool::shared(colour), PvValuePool::shared(file) });
    }
    m_loopImages = PvValuePool::shared(m_loopImages);
}

QHash<QString, QString> PvSpiralConfig::loopImages() const
{
    QHash<QString, QString> images;
    images.reserve(m_loopImages.size());
    for (const auto& [colour, file] : m_loopImages)
        images.insert(colour, file);
    return images;
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
    const auto it = findColour(std::as_const(m_loopImages), colour);
    if (it != m_loopImages.cend() && it->first == colour)
        m_variant = it->second;
}

QSize PvSpiralConfig::spiralSize(Qt::Orientation orientation) const
{
    // Each product fits in 64 bits, their sum may not: it saturates.
    const qint64 loops = qint64(m_count) * m_loopWidth;
    const qint64 gaps = (qint64(m_count) - 1) * m_loopDistance;
    qint64 sum = 0;
    if (qAddOverflow(loops, gaps, &sum))
        sum = loops > 0 ? std::numeric_limits<qint64>::max() : std::numeric_limits<qint64>::min();
    const int length = clampedToInt(sum);
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
    if (!checkPictureSize("loop", m_loopWidth, m_loopHeight, maxPartSide, maxPartSide))
        return QImage();
    const QImage loaded(PvDirectoryConfig::instance().thumbnailsDir().filePath(m_variant));
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
    if (!checkPictureSize("strip", width, height, maxStripLength, maxPartSide))
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
    if (!checkPictureSize("hook", width, height, maxPartSide, 2 * maxPartSide))
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
