// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/FocusRing.h"

#include "toolbar/widgets/ButtonRing.h"
#include "toolbar/widgets/MRScrollWidget.h"

#include <QAbstractButton>
#include <QApplication>

namespace {

constexpr double lineWidth = 1.5;

} // namespace

void FocusRing::bringIntoView(QWidget *button)
{
    for (QWidget *parent = button->parentWidget(); parent; parent = parent->parentWidget()) {
        if (auto *area = qobject_cast<MRScrollArea *>(parent)) {
            area->ensureWidgetVisible(button, 0, 0);
            area->UpdateExtendButton();
        }
    }
}

FocusRing::FocusRing(QWidget *scope)
    : QObject(scope)
    , m_scope(scope)
{
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget *, QWidget *now) { follow(now); });
}

void FocusRing::follow(QWidget *focused)
{
    if (m_ring) {
        m_ring->hide();
        m_ring->deleteLater();
    }
    m_ring = nullptr;
    if (!qobject_cast<QAbstractButton *>(focused) || !m_scope->isAncestorOf(focused))
        return;
    // A window that has just been shown gives the focus to its first widget.
    if (!focused->window()->testAttribute(Qt::WA_KeyboardFocusChange))
        return;

    bringIntoView(focused);
    m_ring = new ButtonRing(focused, lineWidth);
}
