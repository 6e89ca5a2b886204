#include "PvPictureLayout.h"

#include "PvJsonOutput.h"
#include "PvPictureMarks.h"
#include "PvProductTypeDescription.h"

#include <algorithm>

namespace {
// Sizes in pixels of the picture.
constexpr qreal margin = 16;
constexpr qreal headingHeight = 26;
constexpr qreal captionHeight = 18;
constexpr qreal spreadGap = 20;
constexpr qreal lineGap = 14;
constexpr qreal sectionGap = 10;
constexpr qreal contentWidth = 1040;
constexpr qreal pageLong = 168;
constexpr qreal pageShort = 120;
constexpr qreal spineThickness = 22;
constexpr qreal legendHeight = 40;
constexpr qreal legendWidth = 900;

// Page type bits of the cover spread.
constexpr int jacketMask = PvPageTypeJacketFlapRight | PvPageTypeJacketBack | PvPageTypeJacketFront | PvPageTypeJacketFlapLeft;
constexpr int coverMask = PvPageTypeSpine | PvPageTypeCoverBack | PvPageTypeCover | PvPageTypeCoverFront | jacketMask;
constexpr int spineType = PvPageTypeSpine;
constexpr int flapMask = PvPageTypeJacketFlapLeft | PvPageTypeJacketFlapRight;
constexpr int panoramaPage = PvPageTypePanoramaPage;
constexpr int openingPage = PvPageTypeOpeningPage;
// Alignment bits: where a page lies in its spread.
constexpr int firstSide = 1 | 16; // left, top
constexpr int middleSide = 4 | 64; // center, middle
constexpr int lastSide = 2 | 32; // right, bottom

/*! The pages of one spread by their place in it; -1 where none lies. */
struct Spread {
    int first = -1;
    int middle = -1;
    int last = -1;
    //! A page across the whole spread (panorama, opening, or one without a side).
    int whole = -1;
};

/*! Places spreads left to right and wraps them into lines. */
class Flow
{
public:
    explicit Flow(qreal top) : m_top(top) { }

    //! The top-left corner for a cell of \a size.
    QPointF place(const QSizeF& size)
    {
        if (m_x > 0 && m_x + size.width() > contentWidth)
            newLine();
        const QPointF at(margin + m_x, m_top);
        m_x += size.width() + spreadGap;
        m_lineHeight = std::max(m_lineHeight, size.height());
        m_width = std::max(m_width, m_x - spreadGap);
        return at;
    }
    void newLine()
    {
        if (m_x > 0)
            m_top += m_lineHeight + lineGap;
        m_x = 0;
        m_lineHeight = 0;
    }
    //! Starts a part of the picture below everything placed; answers where its caption goes.
    qreal startSection(qreal captionExtent)
    {
        const qreal at = m_used ? bottom() + sectionGap : m_top;
        m_top = at + captionExtent;
        m_x = 0;
        m_lineHeight = 0;
        m_used = true;
        return at;
    }
    //! Below everything placed so far.
    [[nodiscard]] qreal bottom() const { return m_top + m_lineHeight; }
    [[nodiscard]] qreal width() const { return m_width; }

private:
    qreal m_top;
    qreal m_x = 0;
    qreal m_lineHeight = 0;
    qreal m_width = 0;
    bool m_used = false;
};

class Builder
{
public:
    Builder(const PvProductTypeDescription& description, PvPictureLayout& layout)
        : d(description)
        , m(layout)
        , h(description.horizontalPages())
        , pageSize(h ? QSizeF(pageShort, pageLong) : QSizeF(pageLong, pageShort))
        , flow(margin + headingHeight)
    {
    }

    void build(const PvPageTypeList& pageTypes)
    {
        const QList<int> numbers = d.productionNumberingList(int(pageTypes.size()));
        m.pages.reserve(pageTypes.size());
        for (int i = 0; i < pageTypes.size(); ++i) {
            PvPicturePage page;
            page.index = i;
            page.pageType = PvJsonOutput::nameOf(pageTypes.at(i));
            const PvPageAlignment alignment = d.pageAlignment(pageTypes, i);
            page.alignment = alignment.encodeCSV();
            page.pageTypeValue = quint32(pageTypes.at(i).value());
            page.alignmentValue = quint32(alignment.value());
            page.productionNumber = numbers.value(i);
            page.contentAllowed = d.contentAllowedOnPage(i);
            m.pages.append(page);
            types.append(int(pageTypes.at(i).value()));
            alignments.append(int(alignment.value()));
        }
        int next = 0;
        // A bound product's cover is one piece: back, spine and front side by side, the jacket
        // around it, whatever sides the alignments name.
        if (d.hasSpine()) {
            while (next < types.size() && (types.at(next) & coverMask))
                ++next;
        }
        if (next > 0)
            placeCover(next);
        placeSpreads(next);
        m.size = QSize(int(2 * margin + std::max(flow.width(), legendWidth)), int(flow.bottom() + sectionGap + legendHeight + margin));
        m.legend = QRectF(margin, flow.bottom() + sectionGap, m.size.width() - 2 * margin, legendHeight);
        for (PvPicturePage& page : m.pages)
            PvPictureMarks::place(page, d);
    }

private:
    QSizeF pieceSize(int type) const
    {
        if (type & spineType)
            return h ? QSizeF(spineThickness, pageSize.height()) : QSizeF(pageSize.width(), spineThickness);
        if (type & flapMask)
            return h ? QSizeF(pageSize.width() * 0.75, pageSize.height()) : QSizeF(pageSize.width(), pageSize.height() * 0.75);
        return pageSize;
    }

    void caption(const QString& text)
    {
        m.captions.append({ QPointF(margin, flow.startSection(captionHeight)), text });
    }

    // One line of cover pieces, folded towards the middle of the line.
    void placePieces(const QList<int>& indexes)
    {
        if (indexes.isEmpty())
            return;
        QSizeF total(0, 0);
        for (int i : indexes) {
            const QSizeF s = pieceSize(types.at(i));
            total = h ? QSizeF(total.width() + s.width(), std::max(total.height(), s.height()))
                      : QSizeF(std::max(total.width(), s.width()), total.height() + s.height());
        }
        flow.newLine();
        QPointF at = flow.place(total);
        const qreal middle = h ? at.x() + total.width() / 2 : at.y() + total.height() / 2;
        for (int i : indexes) {
            PvPicturePage& page = m.pages[i];
            page.rect = QRectF(at, pieceSize(types.at(i)));
            page.narrow = types.at(i) & (spineType | flapMask);
            const qreal centre = h ? page.rect.center().x() : page.rect.center().y();
            if (types.at(i) & spineType)
                page.boundEdge = h ? Qt::LeftEdge : Qt::TopEdge;
            else if (centre < middle)
                page.boundEdge = h ? Qt::RightEdge : Qt::BottomEdge;
            else
                page.boundEdge = h ? Qt::LeftEdge : Qt::TopEdge;
            at += h ? QPointF(page.rect.width(), 0) : QPointF(0, page.rect.height());
        }
    }

    void placeCover(int count)
    {
        caption(QStringLiteral("Cover"));
        QList<int> cover;
        QList<int> jacket;
        for (int i = 0; i < count; ++i)
            (types.at(i) & jacketMask ? jacket : cover).append(i);
        placePieces(cover);
        if (!jacket.isEmpty()) {
            caption(QStringLiteral("Jacket"));
            placePieces(jacket);
        }
    }

    QList<Spread> spreads(int from) const
    {
        QList<Spread> result;
        bool open = false;
        for (int i = from; i < types.size(); ++i) {
            const int a = alignments.at(i);
            if (types.at(i) == panoramaPage || types.at(i) == openingPage || !(a & (firstSide | middleSide | lastSide))) {
                result.append(Spread { -1, -1, -1, i });
                open = false;
            } else if (a & firstSide) {
                result.append(Spread { i, -1, -1, -1 });
                open = true;
            } else if (a & middleSide) {
                if (open && result.last().middle < 0)
                    result.last().middle = i;
                else
                    result.append(Spread { -1, i, -1, -1 });
                open = true;
            } else {
                if (open)
                    result.last().last = i;
                else
                    result.append(Spread { -1, -1, i, -1 });
                open = false;
            }
        }
        return result;
    }

    void placeSpreads(int from)
    {
        if (from >= types.size())
            return;
        caption(from > 0 ? QStringLiteral("Pages") : QStringLiteral("Pages and spreads"));
        const qreal along = h ? pageSize.width() : pageSize.height();
        for (const Spread& s : spreads(from)) {
            const bool sides = s.first >= 0 || s.last >= 0 || s.whole >= 0;
            const qreal middle = s.middle < 0 ? 0 : (h ? pieceSize(types.at(s.middle)).width() : pieceSize(types.at(s.middle)).height());
            const qreal length = (sides ? 2 * along : 0) + middle;
            const QPointF at = flow.place(h ? QSizeF(length, pageSize.height()) : QSizeF(pageSize.width(), length));
            auto put = [&](int index, qreal offset, qreal extent, Qt::Edge bound) {
                PvPicturePage& page = m.pages[index];
                page.rect = h ? QRectF(at.x() + offset, at.y(), extent, pageSize.height()) : QRectF(at.x(), at.y() + offset, pageSize.width(), extent);
                page.boundEdge = bound;
                page.narrow = types.at(index) & (spineType | flapMask);
            };
            if (s.whole >= 0)
                put(s.whole, 0, 2 * along, Qt::TopEdge);
            if (s.first >= 0)
                put(s.first, 0, along, h ? Qt::RightEdge : Qt::BottomEdge);
            if (s.middle >= 0)
                put(s.middle, sides ? along : 0, sides ? middle : along, Qt::TopEdge);
            if (s.last >= 0)
                put(s.last, along + middle, along, h ? Qt::LeftEdge : Qt::TopEdge);
        }
    }

    const PvProductTypeDescription& d;
    PvPictureLayout& m;
    const bool h;
    const QSizeF pageSize;
    Flow flow;
    QList<int> types;
    QList<int> alignments;
};
}

PvPictureLayout PvPictureLayout::compute(const PvProductTypeDescription& description, int pageCount)
{
    PvPictureLayout layout;
    layout.productType = description.productType().name();
    layout.horizontalPages = description.horizontalPages();
    // A file without a legal page gets one "page" from the library, with a warning; a
    // picture of it would show what the author did not write.
    const PvPageTypeList written = description.pageTypes();
    if (std::all_of(written.cbegin(), written.cend(), [](const PvPageType& type) { return type.value() == 0; })) {
        layout.problem = QStringLiteral("product type \"%1\" has no pages").arg(layout.productType);
        return layout;
    }
    if (pageCount < 0 || pageCount > maximumPageCount) {
        layout.problem = QStringLiteral("a picture takes a page count from 0 to %1").arg(maximumPageCount);
        return layout;
    }
    const PvPageTypeList pageTypes = description.pageTypes(unsigned(pageCount));
    if (pageTypes.size() > maximumPageCount) {
        layout.problem = QStringLiteral("product type \"%1\" has %2 pages for %3, too many to draw").arg(layout.productType).arg(pageTypes.size()).arg(pageCount);
        return layout;
    }
    layout.heading = QStringLiteral("%1: %2 pages for a project of %3, %4")
                         .arg(layout.productType)
                         .arg(pageTypes.size())
                         .arg(pageCount)
                         .arg(layout.horizontalPages ? QStringLiteral("pages side by side") : QStringLiteral("pages top and bottom"));
    Builder(description, layout).build(pageTypes);
    return layout;
}

const PvPicturePage* PvPictureLayout::page(int index) const
{
    return index >= 0 && index < pages.size() ? &pages.at(index) : nullptr;
}
