// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/widgets/Panel.h"

/**
 * Lies over one end of a scrolling area and lets what is cut off there fade into the ground, so
 * that half a control is not taken for a narrow one. The mouse goes through.
 */
class EndFade : public Panel
{
public:
    /** @param edge Qt::LeftEdge or Qt::RightEdge of @p area, which owns the fade */
    EndFade(Qt::Edge edge, QWidget *area);

    /** Lies down along the edge of @p view, in pixels of the area. */
    void follow(const QRect &view);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Qt::Edge m_edge;
};
