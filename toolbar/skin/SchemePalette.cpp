// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/skin/SchemePalette.h"

#include "toolbar/skin/Appearance.h"

#include <QEvent>
#include <QWidget>

SchemePalette::SchemePalette(QWidget *widget)
    : QObject(widget)
    , m_widget(widget)
{
    connect(SchemeNotifier::instance(), &SchemeNotifier::changed, this, &SchemePalette::apply);
    widget->installEventFilter(this);
    apply();
}

bool SchemePalette::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_widget && event->type() == QEvent::ParentChange)
        apply();
    return false;
}

void SchemePalette::apply()
{
    const SchemeColours *colours = Appearance::coloursFor(m_widget);
    // A palette that the host has given a light widget is the host's.
    if (!colours && !m_isApplied)
        return;

    m_isApplied = colours != nullptr;
    m_widget->setPalette(colours ? schemePalette(*colours) : QPalette());
    // A sheet has looked up the colours of the palette before.
    if (!m_widget->styleSheet().isEmpty())
        m_widget->setStyleSheet(m_widget->styleSheet());
}
