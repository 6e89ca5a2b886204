#include "PvPagePainter.h"

#include "PvPictureLayout.h"
#include "PvPictureMarks.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace {
constexpr qreal hatchSpacing = 9;
constexpr qreal labelPadding = 4;
constexpr int labelPixelSize = 9;
constexpr int headingPixelSize = 13;

const QColor outlineColor(60, 60, 60);
const QColor textColor(0, 0, 0);

void paintLabel(QPainter& painter, const PvPicturePage& page)
{
    QFont font = painter.font();
    font.setPixelSize(labelPixelSize);
    painter.setFont(font);
    painter.setPen(textColor);
    const QFontMetricsF metrics(font);
    QRectF area = page.rect.adjusted(labelPadding, labelPadding, -labelPadding, -labelPadding);
    QStringList lines = PvPagePainter::labelLines(page);
    painter.save();
    // Spines and other narrow pieces get their label in one line along their length.
    if (area.width() < 50 && area.height() > area.width()) {
        painter.translate(area.bottomLeft());
        painter.rotate(-90);
        area = QRectF(0, 0, area.height(), area.width());
        lines = QStringList { lines.join(QLatin1Char(' ')) };
    }
    // Leave the bound edge's marks visible: the label starts below loops along the top.
    if (page.boundEdge == Qt::TopEdge && !page.spiralLoops.isEmpty() && area == page.rect.adjusted(labelPadding, labelPadding, -labelPadding, -labelPadding))
        area.setTop(area.top() + 14 + (page.hole.isNull() ? 0 : page.hole.height() + 2));
    qreal y = area.top() + metrics.ascent();
    for (const QString& line : lines) {
        if (y > area.bottom())
            break;
        painter.drawText(QPointF(area.left(), y), metrics.elidedText(line, Qt::ElideRight, area.width()));
        y += metrics.lineSpacing();
    }
    painter.restore();
}
}

QList<QLineF> PvPagePainter::hatchLines(const QRectF& rect)
{
    // Lines from the top edge down to the left at 45 degrees: x + y is constant on each.
    QList<QLineF> lines;
    const qreal w = rect.width();
    const qreal h = rect.height();
    for (qreal d = hatchSpacing / 2; d < w + h; d += hatchSpacing) {
        const qreal fromX = std::min(d, w);
        const qreal toX = std::max(d - h, 0.0);
        lines.append(QLineF(rect.left() + fromX, rect.top() + d - fromX, rect.left() + toX, rect.top() + d - toX));
    }
    return lines;
}

QStringList PvPagePainter::labelLines(const PvPicturePage& page)
{
    QStringList lines { QStringLiteral("#%1").arg(page.index), page.pageType, page.alignment, QStringLiteral("No. %1").arg(page.productionNumber) };
    if (!page.surroundingType.isEmpty())
        lines.append(page.surroundingType);
    return lines;
}

void PvPagePainter::paintPage(QPainter& painter, const PvPicturePage& page)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawRect(page.rect);
    PvPictureMarks::paintUnder(painter, page);
    if (!page.contentAllowed) {
        // Without antialiasing the lines keep their exact colour, which a reader can look for.
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setPen(QPen(hatchColor, 1));
        painter.drawLines(hatchLines(page.rect));
        painter.restore();
    }
    paintLabel(painter, page);
    PvPictureMarks::paintOver(painter, page);
    painter.setPen(QPen(outlineColor, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(page.rect);
}

void PvPagePainter::paintPages(QPainter& painter, const PvPictureLayout& layout)
{
    QFont font = painter.font();
    font.setPixelSize(headingPixelSize);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(textColor);
    const QFontMetricsF metrics(font);
    painter.drawText(QPointF(16, 16 + metrics.ascent()), layout.heading);
    font.setPixelSize(labelPixelSize + 2);
    painter.setFont(font);
    for (const PvPictureCaption& caption : layout.captions)
        painter.drawText(caption.position + QPointF(0, QFontMetricsF(font).ascent()), caption.text);
    font.setBold(false);
    painter.setFont(font);
    for (const PvPicturePage& page : layout.pages)
        paintPage(painter, page);
}
