// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/RowPause.h"

#include "toolbar/widgets/MRScrollWidget.h"

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
    for (const MRScrollArea *row : rows)
        m_places.append({row->horizontalScrollBar(), row->horizontalScrollBar()->value()});
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
        if (place.bar)
            place.bar->setValue(place.value);
    }
}
