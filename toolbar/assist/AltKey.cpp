// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/assist/AltKey.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMenuBar>

#include <algorithm>
#include <utility>

namespace {

bool hasMnemonics(const QMenuBar *bar)
{
    const QList<QAction *> menus = bar->actions();
    return bar->isVisible() && std::any_of(menus.begin(), menus.end(), [](const QAction *menu) {
               return menu->isVisible() && !QKeySequence::mnemonic(menu->text()).isEmpty();
           });
}

bool hasMenuBarWithMnemonics(const QWidget *window)
{
    const QList<QMenuBar *> bars = window->findChildren<QMenuBar *>();
    return std::any_of(bars.begin(), bars.end(), hasMnemonics);
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
        if (watched == m_window && static_cast<QKeyEvent *>(event)->key() == Qt::Key_F10
            && static_cast<QKeyEvent *>(event)->modifiers() == Qt::NoModifier && isForWindow()) {
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
        && !hasMenuBarWithMnemonics(m_window))
        Q_EMIT pressed();
}

bool AltKey::isForWindow() const
{
    return QApplication::activeWindow() == m_window && !QApplication::activePopupWidget()
           && !QApplication::activeModalWidget();
}
