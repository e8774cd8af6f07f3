// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/assist/AltKey.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMenuBar>
#include <QStyle>

#include <algorithm>
#include <utility>

namespace {

/** Whether Alt leads to the menus of the bar, which also those without mnemonics have. */
bool takesAlt(const QMenuBar *bar)
{
    const QList<QAction *> menus = bar->actions();
    return bar->isVisible()
           && bar->style()->styleHint(QStyle::SH_MenuBar_AltKeyNavigation, nullptr, bar)
           && std::any_of(menus.begin(), menus.end(),
                          [](const QAction *menu) { return menu->isVisible(); });
}

bool hasMenuBarThatTakesAlt(const QWidget *window)
{
    const QList<QMenuBar *> bars = window->findChildren<QMenuBar *>();
    return std::any_of(bars.begin(), bars.end(), [window](const QMenuBar *bar) {
        return bar->window() == window && takesAlt(bar);
    });
}

} // namespace

AltKey::AltKey(QWidget *window, QObject *parent)
    : QObject(parent)
    , m_window(window)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool AltKey::eventFilter(QObject *watched, QEvent *event)
{
    // A key comes here once for each widget that it is offered to, which changes nothing.
    switch (event->type()) {
    case QEvent::KeyPress:
        notePress(*static_cast<QKeyEvent *>(event));
        if (static_cast<QKeyEvent *>(event)->key() == Qt::Key_F10
            && static_cast<QKeyEvent *>(event)->modifiers() == Qt::NoModifier && isForWindow()
            && watched == m_window->window()) {
            Q_EMIT pressed();
            return true;
        }
        break;
    case QEvent::ShortcutOverride:
        // A shortcut with Alt takes its key before it is pressed for anybody.
        notePress(*static_cast<QKeyEvent *>(event));
        break;
    case QEvent::KeyRelease:
        noteRelease(*static_cast<QKeyEvent *>(event));
        break;
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
    case QEvent::WindowDeactivate:
        m_isAltAlone = false;
        break;
    case QEvent::FocusOut:
        m_isComposing = false;
        break;
    case QEvent::InputMethod:
        m_isComposing = !static_cast<QInputMethodEvent *>(event)->preeditString().isEmpty();
        break;
    default:
        break;
    }
    return false;
}

void AltKey::notePress(const QKeyEvent &key)
{
    if (!key.isAutoRepeat())
        m_isAltAlone =
            key.key() == Qt::Key_Alt && (key.modifiers() & ~Qt::AltModifier) == Qt::NoModifier;
}

void AltKey::noteRelease(const QKeyEvent &key)
{
    const bool wasAlone = std::exchange(m_isAltAlone, false);
    if (wasAlone && key.key() == Qt::Key_Alt && !m_isComposing && isForWindow()
        && !hasMenuBarThatTakesAlt(m_window->window()))
        Q_EMIT pressed();
}

bool AltKey::isForWindow() const
{
    return m_window && QApplication::activeWindow() == m_window->window()
           && !QApplication::activePopupWidget() && !QApplication::activeModalWidget();
}
