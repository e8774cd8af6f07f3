// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/skin/PaintedIcon.h"

#include "toolbar/skin/PaintedIconEngine.h"

namespace {

using Painting = std::function<void(QPainter *, const QRect &, QIcon::Mode, QIcon::State)>;

class FunctionEngine : public PaintedIconEngine
{
public:
    explicit FunctionEngine(const Painting &paint)
        : m_paint(paint)
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        m_paint(painter, rect, mode, state);
    }

    QIconEngine *clone() const override { return new FunctionEngine(m_paint); }

private:
    const Painting m_paint;
};

} // namespace

QIcon paintedIcon(const Painting &paint)
{
    return QIcon(new FunctionEngine(paint));
}
