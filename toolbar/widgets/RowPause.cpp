// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/RowPause.h"

#include "toolbar/widgets/MRScrollWidget.h"

#include <QScrollBar>

RowPause::RowPause(const QWidget *area)
{
    const QList<QLayout *> layouts = area->findChildren<QLayout *>();
    for (QLayout *layout : layouts) {
        if (!layout->isEnabled())
            continue;
        layout->setEnabled(false);
        m_layouts.append(layout);
    }
    const QList<MRScrollArea *> rows = area->findChildren<MRScrollArea *>();
    for (MRScrollArea *row : rows) {
        m_places.append({row, row->horizontalScrollBar()->value(), !row->isStylePaused()});
        row->setStylePaused(true);
    }
}

RowPause::~RowPause()
{
    for (const QPointer<QLayout> &layout : std::as_const(m_layouts)) {
        if (!layout)
            continue;
        layout->setEnabled(true);
        layout->update();
    }
    for (const Place &place : std::as_const(m_places)) {
        if (!place.row)
            continue;
        if (place.isPausedHere)
            place.row->setStylePaused(false);
        place.row->horizontalScrollBar()->setValue(place.value);
    }
}
