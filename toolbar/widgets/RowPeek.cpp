// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/RowPeek.h"

#include "toolbar/QtCompat.h"
#include "toolbar/description/Names.h"
#include "toolbar/widgets/PeekShadow.h"
#include "toolbar/widgets/RowsItem.h"
#include "toolbar/widgets/TabStrip.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QMouseEvent>
#include <QVBoxLayout>

namespace {

bool isBelow(const QWidget *ancestor, const QWidget *widget)
{
    return ancestor && widget && (ancestor == widget || ancestor->isAncestorOf(widget));
}

/** What takes the toolbar in, right below the window; null if the toolbar is a window. */
QWidget *topAround(QWidget *toolBar)
{
    QWidget *top = toolBar;
    while (top->parentWidget() && !qobject_cast<QMainWindow *>(top->parentWidget()))
        top = top->parentWidget();
    return top->parentWidget() ? top : nullptr;
}

/** Key tips have the focus only while they lead to a control. */
bool isKeyTips(const QObject *widget)
{
    return widget && widget->objectName() == Part::keyTips;
}

bool isReturn(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

} // namespace

RowPeek::RowPeek(QWidget *toolBar, QVBoxLayout *layout, QWidget *rows)
    : QObject(toolBar)
    , m_toolBar(toolBar)
    , m_layout(layout)
    , m_rows(rows)
    , m_item(new RowsItem(rows))
{
    m_layout->removeWidget(rows);
    m_layout->addItem(m_item);
}

RowPeek::~RowPeek()
{
    if (!m_shadow)
        return;
    m_shadow->hide();
    m_shadow->deleteLater();
}

bool RowPeek::begin()
{
    if (m_isActive)
        return true;
    m_top = topAround(m_toolBar);
    if (!m_top || !m_rows || !m_layout || !m_toolBar->isVisible())
        return false;
    m_height = m_top->height();
    if (m_top->y() + wantedHeight() > m_top->parentWidget()->height())
        return false;

    m_isActive = true;
    ++m_number;
    m_previousFocus = QApplication::focusWidget();
    m_item->setPeeking(true);
    m_top->raise();
    if (!m_shadow)
        m_shadow = new PeekShadow(m_toolBar, m_top->parentWidget());
    // Showing the rows has the window lay its tool bars out, and the place of this one follows.
    qApp->installEventFilter(this);
    m_rows->show();
    place();
    m_layout->activate();
    return true;
}

void RowPeek::end()
{
    if (!m_isActive)
        return;
    m_isActive = false;
    qApp->removeEventFilter(this);
    if (m_shadow)
        m_shadow->hide();
    // The toolbar is being deleted.
    if (!m_layout || !m_rows || !m_top)
        return;
    const QPointer<RowPeek> self(this);
    returnFocus();
    // The host may hear of the focus and delete the toolbar.
    if (!self || !m_rows || !m_top)
        return;
    m_rows->hide();
    m_item->setPeeking(false);
    m_top->resize(m_top->width(), m_height);
}

void RowPeek::returnFocus()
{
    const QWidget *focused = QApplication::focusWidget();
    if (!isBelow(m_rows, focused))
        return;
    const auto *window = m_top ? qobject_cast<QMainWindow *>(m_top->parentWidget()) : nullptr;
    QWidget *next = m_previousFocus;
    if ((!next || isBelow(m_rows, next) || !next->isVisible()) && window)
        next = window->centralWidget();
    if (next)
        next->setFocus(Qt::OtherFocusReason);
}

int RowPeek::wantedHeight() const
{
    return m_top->sizeHint().height() + m_item->wholeSize().height();
}

void RowPeek::place()
{
    m_top->resize(m_top->width(), wantedHeight());
    if (m_shadow)
        m_shadow->follow(m_top->geometry());
}

bool RowPeek::eventFilter(QObject *watched, QEvent *event)
{
    follow(watched, event->type());
    auto *target = qobject_cast<QWidget *>(watched);
    if (!m_isActive || !m_top || !target || target->window() != m_top->window())
        return false;

    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        // An event that nobody takes is passed to all parents, and the place says where it began.
        const QPoint place = QtCompat::globalPosition(static_cast<QMouseEvent *>(event));
        const QWidget *window = m_top->window();
        if (endsPeek(window->childAt(window->mapFromGlobal(place))))
            end();
        return false;
    }
    case QEvent::FocusIn: {
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        const bool isByTab = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
        if (isByTab && !isBelow(m_toolBar, target))
            end();
        // The tips that have opened the tab give the focus back first.
        else if (isKeyTips(m_previousFocus) && !isKeyTips(target))
            m_previousFocus = target;
        return false;
    }
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
        return handleKey(target, event);
    default:
        return false;
    }
}

bool RowPeek::handleKey(QWidget *target, QEvent *event)
{
    const auto &key = *static_cast<QKeyEvent *>(event);
    // With key tips Esc goes a step back.
    if (QApplication::activePopupWidget() || isKeyTips(target))
        return false;
    if (key.key() == Qt::Key_Escape) {
        event->accept();
        if (event->type() == QEvent::KeyPress)
            end();
        return true;
    }
    const bool isUse = event->type() == QEvent::KeyPress && isReturn(key)
                       && qobject_cast<QLineEdit *>(target) && isBelow(m_rows, target);
    // The field has not had the key yet.
    if (isUse) {
        const auto endThis = [this, number = m_number] {
            if (number == m_number)
                end();
        };
        QMetaObject::invokeMethod(this, endThis, Qt::QueuedConnection);
    }
    return false;
}

void RowPeek::follow(QObject *watched, QEvent::Type type)
{
    if (!m_top || !m_rows || !m_layout)
        return;
    // The window has laid its tool bars out again.
    if (watched == m_top && type == QEvent::Resize && m_top->height() != wantedHeight())
        m_height = m_top->height();
    const bool isPlaced = watched == m_top && (type == QEvent::Resize || type == QEvent::Move);
    if (isPlaced || (watched == m_toolBar && type == QEvent::LayoutRequest))
        place();
    const bool isOver = (watched == m_top && type == QEvent::Hide)
                        || (watched == m_top->window() && type == QEvent::WindowDeactivate);
    if (isOver)
        end();
}

bool RowPeek::endsPeek(const QWidget *hit) const
{
    if (isBelow(m_rows, hit))
        return false;
    // The tabs open or end it themselves, and unfolding does, too.
    for (const QWidget *widget = hit; isBelow(m_toolBar, widget); widget = widget->parentWidget()) {
        if (dynamic_cast<const TabStrip *>(widget) || widget->objectName() == Name::unfold)
            return false;
    }
    return true;
}
