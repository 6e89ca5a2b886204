#include "PvPictureMarks.h"

#include "PvPictureLayout.h"
#include "PvProductTypeDescription.h"
#include "PvSurroundingKey.h"

#include <QLinearGradient>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {
constexpr qreal loopDepth = 12;
constexpr qreal minimumPitch = 3;
constexpr qreal holeDiameter = 9;
constexpr qreal shadeDepth = 14;
constexpr quint32 spineType = PvPageTypeSpine;

bool alongWidth(Qt::Edge edge)
{
    return edge == Qt::TopEdge || edge == Qt::BottomEdge;
}

// The band of depth \a depth inside \a rect along \a edge.
QRectF band(const QRectF& rect, Qt::Edge edge, qreal depth)
{
    switch (edge) {
    case Qt::TopEdge:
        return QRectF(rect.left(), rect.top(), rect.width(), depth);
    case Qt::BottomEdge:
        return QRectF(rect.left(), rect.bottom() - depth, rect.width(), depth);
    case Qt::LeftEdge:
        return QRectF(rect.left(), rect.top(), depth, rect.height());
    case Qt::RightEdge:
        break;
    }
    return QRectF(rect.right() - depth, rect.top(), depth, rect.height());
}

/*
 * The loops of \a spiral spread over the bound edge, in the proportions of the strip the
 * library renders: the hook gap takes hookWidth of the strip's length out of the middle.
 * A spiral of more loops than the edge can show is drawn with as many as fit.
 */
QList<QRectF> loops(const PvSpiralConfig& spiral, const QRectF& rect, Qt::Edge edge)
{
    const qreal edgeLength = alongWidth(edge) ? rect.width() : rect.height();
    const qreal usable = edgeLength * 0.9;
    const int count = int(std::min<qreal>(spiral.spiralCount(), std::floor(usable / minimumPitch)));
    if (count < 1)
        return {};
    const qreal pitch = usable / count;
    const qreal stripLength = spiral.spiralSize(Qt::Horizontal).width();
    const qreal gapHalf = spiral.hasHook() && stripLength > 0 ? std::clamp(spiral.hookWidth() / stripLength, 0.0, 1.0) * usable / 2 : -1;
    const QRectF strip = band(rect, edge, loopDepth);
    QList<QRectF> result;
    for (int i = 0; i < count; ++i) {
        const qreal from = edgeLength * 0.05 + i * pitch + pitch * 0.2;
        const qreal to = from + pitch * 0.6;
        if (gapHalf >= 0 && to >= edgeLength / 2 - gapHalf && from <= edgeLength / 2 + gapHalf)
            continue;
        result.append(alongWidth(edge) ? QRectF(strip.left() + from, strip.top() + 1, to - from, strip.height() - 2)
                                       : QRectF(strip.left() + 1, strip.top() + from, strip.width() - 2, to - from));
    }
    return result;
}
}

void PvPictureMarks::place(PvPicturePage& page, const PvProductTypeDescription& description)
{
    const PvPageContext context(PvPageType(PvPageTypeEnum(page.pageTypeValue)), PvPageAlignment(PvPageAlignmentEnum(page.alignmentValue)));
    const PvSurroundingDescription surrounding = description.findSurrounding(PvSurroundingKey(context, page.index, PvArticleVariants()));
    // A failed lookup answers a description of type 0: no surrounding.
    if (surrounding.surroundingType().value() == 0)
        return;
    page.surroundingType = surrounding.surroundingType().encodeCSV();
    page.bindingShade = surrounding.hasBindingShade();
    page.spineFold = surrounding.hasSpineFold();
    if (surrounding.spiralConfig().hasSpiral())
        page.spiralLoops = loops(surrounding.spiralConfig(), page.rect, page.boundEdge);
    if (surrounding.calendarHoleConfig().hasHole()) {
        // The hole is where the calendar hangs: at the top, below the loops when they are there.
        const qreal top = page.rect.top() + (page.boundEdge == Qt::TopEdge && !page.spiralLoops.isEmpty() ? loopDepth + 3 : 4);
        page.hole = QRectF(page.rect.center().x() - holeDiameter / 2, top, holeDiameter, holeDiameter);
    }
}

void PvPictureMarks::paintLoop(QPainter& painter, const QRectF& rect)
{
    painter.setPen(QPen(loopColor, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(rect, rect.width() / 3, rect.height() / 3);
}

void PvPictureMarks::paintHole(QPainter& painter, const QRectF& rect)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(holeColor);
    painter.drawEllipse(rect);
}

void PvPictureMarks::paintShade(QPainter& painter, const QRectF& rect, Qt::Edge edge)
{
    const QRectF area = band(rect, edge, std::min(shadeDepth, alongWidth(edge) ? rect.height() : rect.width()));
    QPointF from;
    QPointF to;
    switch (edge) {
    case Qt::TopEdge:
        from = area.topLeft();
        to = area.bottomLeft();
        break;
    case Qt::BottomEdge:
        from = area.bottomLeft();
        to = area.topLeft();
        break;
    case Qt::LeftEdge:
        from = area.topLeft();
        to = area.topRight();
        break;
    case Qt::RightEdge:
        from = area.topRight();
        to = area.topLeft();
        break;
    }
    QLinearGradient gradient(from, to);
    QColor dark = shadeColor;
    dark.setAlpha(150);
    QColor clear = shadeColor;
    clear.setAlpha(0);
    gradient.setColorAt(0, dark);
    gradient.setColorAt(1, clear);
    painter.fillRect(area, gradient);
}

void PvPictureMarks::paintFold(QPainter& painter, const QRectF& rect, Qt::Edge edge)
{
    const QRectF line = band(rect, edge, 2);
    painter.setPen(QPen(foldColor, 2, Qt::DashLine));
    painter.setBrush(Qt::NoBrush);
    if (alongWidth(edge))
        painter.drawLine(QLineF(line.left(), line.center().y(), line.right(), line.center().y()));
    else
        painter.drawLine(QLineF(line.center().x(), line.top(), line.center().x(), line.bottom()));
}

void PvPictureMarks::paintUnder(QPainter& painter, const PvPicturePage& page)
{
    // A spine is bound on both long edges.
    QList<Qt::Edge> edges { page.boundEdge };
    if (page.pageTypeValue & spineType)
        edges.append(page.boundEdge == Qt::LeftEdge ? Qt::RightEdge : Qt::BottomEdge);
    for (Qt::Edge edge : edges) {
        if (page.bindingShade)
            paintShade(painter, page.rect, edge);
        if (page.spineFold)
            paintFold(painter, page.rect, edge);
    }
}

void PvPictureMarks::paintOver(QPainter& painter, const PvPicturePage& page)
{
    // Marks keep their exact colours (no antialiasing), so that a reader of the picture finds them.
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    for (const QRectF& loop : page.spiralLoops)
        paintLoop(painter, loop);
    if (!page.hole.isNull())
        paintHole(painter, page.hole);
    painter.restore();
}
