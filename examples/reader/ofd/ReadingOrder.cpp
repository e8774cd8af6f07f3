// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/ReadingOrder.h"

#include <algorithm>
#include <utility>

namespace Ofd {

namespace {

/** As a share of the height of a line: the least width of the space between two columns. */
constexpr qreal leastGutter = 0.8;
/** As a share of the height of a line: shorter pieces are the cells of a table. */
constexpr qreal leastProse = 6;
constexpr int leastLines = 2;
/** As a share of all pieces: more of them across a space do not leave two columns. */
constexpr qreal mostAcross = 0.35;
constexpr qreal sameRowOverlap = 0.5;
constexpr int mostDepth = 12;
/** The order of more pieces, which no page of text has, is left as it is. */
constexpr int mostPieces = 5000;

using Pieces = QVector<int>;

/** The pieces on both sides of a space between columns, and those across it. */
struct Split
{
    Pieces left;
    Pieces right;
    Pieces across;

    bool isFound() const { return !left.isEmpty(); }
};

class Order
{
public:
    explicit Order(const QVector<QRectF> &rects)
        : m_rects(rects)
    {
    }

    Pieces take()
    {
        Pieces all;
        for (int i = 0; i < m_rects.size(); ++i)
            all.append(i);
        if (all.size() > mostPieces)
            return all;
        add(all, 0);
        return std::move(m_order);
    }

private:
    void add(Pieces pieces, int depth)
    {
        const Split split = depth < mostDepth ? splitOf(pieces) : Split();
        if (!split.isFound()) {
            addRows(std::move(pieces));
        } else if (split.across.isEmpty()) {
            add(split.left, depth + 1);
            add(split.right, depth + 1);
        } else {
            addBands(pieces, split.across, depth + 1);
        }
    }

    /** The pieces above, between and below those that run across the columns. */
    void addBands(Pieces pieces, Pieces across, int depth)
    {
        sortDown(pieces);
        sortDown(across);
        Pieces band;
        auto next = across.cbegin();
        for (const int piece : std::as_const(pieces)) {
            if (next == across.cend() || piece != *next) {
                band.append(piece);
                continue;
            }
            add(std::exchange(band, {}), depth);
            m_order.append(piece);
            ++next;
        }
        add(band, depth);
    }

    void addRows(Pieces pieces)
    {
        sortDown(pieces);
        while (!pieces.isEmpty()) {
            const QRectF first = m_rects.at(pieces.first());
            const auto end = std::stable_partition(pieces.begin(), pieces.end(), [&](int piece) {
                return overlap(first, m_rects.at(piece));
            });
            std::stable_sort(pieces.begin(), end, [this](int a, int b) {
                return m_rects.at(a).left() < m_rects.at(b).left();
            });
            m_order += Pieces(pieces.begin(), end);
            pieces.erase(pieces.begin(), end);
        }
    }

    /** The space that fewest pieces cross, with running text on both sides of it. */
    Split splitOf(const Pieces &pieces) const
    {
        Split best;
        if (pieces.size() < 2 * leastLines)
            return best;
        const qreal line = median(pieces, [](const QRectF &rect) { return rect.height(); });
        int fewest = int(mostAcross * pieces.size()) + 1;
        QVector<qreal> ends;
        for (const int piece : pieces)
            ends.append(m_rects.at(piece).right());
        std::sort(ends.begin(), ends.end());
        ends.erase(std::unique(ends.begin(), ends.end()), ends.end());
        for (const qreal end : std::as_const(ends)) {
            const Split split = splitAt(pieces, end, end + leastGutter * line);
            if (split.across.size() < fewest && isProse(split.left, line)
                && isProse(split.right, line) && areApart(split)) {
                fewest = int(split.across.size());
                best = split;
            }
        }
        return best;
    }

    Split splitAt(const Pieces &pieces, qreal left, qreal right) const
    {
        Split split;
        for (const int piece : pieces) {
            const QRectF &rect = m_rects.at(piece);
            if (rect.right() <= left)
                split.left.append(piece);
            else if (rect.left() >= right)
                split.right.append(piece);
            else
                split.across.append(piece);
        }
        return split;
    }

    bool isProse(const Pieces &pieces, qreal line) const
    {
        return pieces.size() >= leastLines && median(pieces, [](const QRectF &rect) {
                                                  return rect.width();
                                              }) >= leastProse * line;
    }

    /** Whether nothing is beside a piece that runs across the columns. */
    bool areApart(const Split &split) const
    {
        return std::none_of(split.across.begin(), split.across.end(), [&](int piece) {
            const auto isBeside = [&](int other) {
                return overlap(m_rects.at(piece), m_rects.at(other));
            };
            return std::any_of(split.left.begin(), split.left.end(), isBeside)
                   || std::any_of(split.right.begin(), split.right.end(), isBeside);
        });
    }

    template <typename Length>
    qreal median(const Pieces &pieces, Length length) const
    {
        QVector<qreal> lengths;
        for (const int piece : pieces)
            lengths.append(length(m_rects.at(piece)));
        const auto middle = lengths.begin() + lengths.size() / 2;
        std::nth_element(lengths.begin(), middle, lengths.end());
        return *middle;
    }

    static bool overlap(const QRectF &a, const QRectF &b)
    {
        const qreal shared = std::min(a.bottom(), b.bottom()) - std::max(a.top(), b.top());
        return shared > sameRowOverlap * std::min(a.height(), b.height()) || a.top() == b.top();
    }

    void sortDown(Pieces &pieces) const
    {
        std::stable_sort(pieces.begin(), pieces.end(), [this](int a, int b) {
            return m_rects.at(a).top() < m_rects.at(b).top();
        });
    }

    const QVector<QRectF> &m_rects;
    Pieces m_order;
};

} // namespace

QVector<int> readingOrder(const QVector<QRectF> &pieces)
{
    return Order(pieces).take();
}

} // namespace Ofd
