#include "PvPictureLegend.h"

#include "PvPagePainter.h"
#include "PvPictureLayout.h"
#include "PvPictureMarks.h"

#include <QFontMetricsF>
#include <QPainter>

namespace {
constexpr qreal swatch = 18;
constexpr qreal entryGap = 14;
constexpr int textPixelSize = 10;

// Draws one entry at \a x and answers where the next one starts.
template <typename Sample>
qreal entry(QPainter& painter, qreal x, qreal y, const QString& text, Sample sample)
{
    const QRectF box(x, y, swatch, swatch);
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawRect(box);
    sample(box);
    painter.restore();
    painter.setPen(QColor(60, 60, 60));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(box);
    const QFontMetricsF metrics(painter.font());
    painter.setPen(Qt::black);
    painter.drawText(QPointF(x + swatch + 5, y + (swatch + metrics.ascent() - metrics.descent()) / 2), text);
    return x + swatch + 5 + metrics.horizontalAdvance(text) + entryGap;
}
}

void PvPictureLegend::paint(QPainter& painter, const PvPictureLayout& layout)
{
    QFont font = painter.font();
    font.setPixelSize(textPixelSize);
    font.setBold(false);
    painter.setFont(font);
    const QFontMetricsF metrics(font);
    painter.setPen(Qt::black);
    painter.drawText(QPointF(layout.legend.left(), layout.legend.top() + metrics.ascent()),
                     QStringLiteral("Each page: #index, page type, alignment, production number and the type of the surrounding the product finds for it, whose marks are:"));
    const qreal y = layout.legend.top() + metrics.lineSpacing() + 4;
    qreal x = layout.legend.left();
    x = entry(painter, x, y, QStringLiteral("no content allowed"), [&](const QRectF& box) {
        painter.setPen(QPen(PvPagePainter::hatchColor, 1));
        painter.drawLines(PvPagePainter::hatchLines(box));
    });
    x = entry(painter, x, y, QStringLiteral("spiral loops"), [&](const QRectF& box) {
        PvPictureMarks::paintLoop(painter, QRectF(box.left() + 3, box.top() + 3, 4, box.height() - 6));
        PvPictureMarks::paintLoop(painter, QRectF(box.left() + 11, box.top() + 3, 4, box.height() - 6));
    });
    x = entry(painter, x, y, QStringLiteral("hanging hole"), [&](const QRectF& box) {
        PvPictureMarks::paintHole(painter, box.adjusted(4, 4, -4, -4));
    });
    x = entry(painter, x, y, QStringLiteral("binding shade"), [&](const QRectF& box) {
        PvPictureMarks::paintShade(painter, box, Qt::LeftEdge);
    });
    entry(painter, x, y, QStringLiteral("spine fold"), [&](const QRectF& box) {
        PvPictureMarks::paintFold(painter, box, Qt::LeftEdge);
    });
}
