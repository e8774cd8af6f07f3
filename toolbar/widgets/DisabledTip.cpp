// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/DisabledTip.h"

#include <QAction>
#include <QEvent>

namespace {

/** Whether this is what the action shows for a tooltip because it has none. */
bool isStandIn(const QString &tip, const QObject *control, const char *property)
{
    const auto *action = qobject_cast<const QAction *>(control);
    if (!action || property != QLatin1String("toolTip"))
        return false;
    QAction withoutToolTip(action->text());
    return withoutToolTip.toolTip() == tip;
}

} // namespace

void DisabledTip::give(QObject *control, const QString &tip, CardLines lines)
{
    auto *self = control->findChild<DisabledTip *>(QString(), Qt::FindDirectChildrenOnly);
    if (!self)
        self = new DisabledTip(control);
    self->m_toolTip.whileDisabled = toolTipCard(tip, lines);
    self->m_statusTip.whileDisabled = tip;
    self->follow();
}

DisabledTip::DisabledTip(QObject *control)
    : QObject(control)
    , m_control(control)
{
    if (const auto *action = qobject_cast<QAction *>(control))
        connect(action, &QAction::changed, this, qOverload<>(&DisabledTip::follow));
    else
        control->installEventFilter(this);
}

bool DisabledTip::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_control
        && (event->type() == QEvent::EnabledChange || event->type() == QEvent::ToolTipChange))
        follow();
    return false;
}

void DisabledTip::follow()
{
    follow(m_toolTip);
    if (qobject_cast<QAction *>(m_control))
        follow(m_statusTip);
}

void DisabledTip::follow(Replaced &text)
{
    const QString current = m_control->property(text.property).toString();
    // A tool button copies the tooltip of its action, which may be disabled for its part.
    if (current != text.shown && current != text.whileDisabled)
        text.usual = isStandIn(current, m_control, text.property) ? QString() : current;
    const bool isEnabled = m_control->property("enabled").toBool();
    text.shown = isEnabled ? text.usual : text.whileDisabled;
    if (text.shown != current)
        m_control->setProperty(text.property, text.shown);
}
