// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/monkey/RandomSource.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCursor>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QTest>
#include <QWheelEvent>
#include <QWidget>

#include <algorithm>
#include <iterator>

/** The visible children of a window. */
template <typename Widget>
QList<QWidget *> shown(const QWidget &window)
{
    QList<QWidget *> widgets;
    const QList<Widget *> children = window.findChildren<Widget *>();
    for (Widget *child : children) {
        if (child->isVisible() && !child->isWindow() && !child->size().isEmpty())
            widgets.append(child);
    }
    return widgets;
}

/** A user who makes any gesture at any time. */
class RandomUser
{
public:
    explicit RandomUser(RandomSource &random)
        : m_random(random)
    {
    }

    /** Makes one gesture somewhere in the window and returns a text about it. */
    QString step(QWidget &window)
    {
        using Gesture = void (RandomUser::*)(QPointer<QWidget>);
        static const QList<std::pair<QString, Gesture>> rareGestures{
            {"drag", &RandomUser::drag},
            {"wheel", &RandomUser::turnWheel},
            {"hover", &RandomUser::hover},
            {"ask for a menu", &RandomUser::askForMenu},
            {"double click", &RandomUser::clickTwice}};
        const int kind = m_random.below(12);
        if (kind == 0)
            return pressKey(window);
        if (kind == 1)
            return type(window);

        QWidget *widget = anyWidget(window);
        if (!widget)
            return "nothing to use";
        const QString target = QLatin1Char(' ') + widget->metaObject()->className() + ' '
                               + widget->objectName(); // Before the widget is deleted.
        const auto &[name, gesture] = rareGestures.value(kind - 2, {"click", &RandomUser::click});
        (this->*gesture)(widget);
        return name + target;
    }

    /** Clicks one of the visible tabs and returns a text about it. */
    QString clickTab(const QWidget &window)
    {
        QList<QWidget *> tabs;
        const QList<QWidget *> buttons = shown<QAbstractButton>(window);
        std::copy_if(
            buttons.begin(), buttons.end(), std::back_inserter(tabs),
            [](const QWidget *button) { return button->property("module") == "tabbutton"; });
        if (tabs.isEmpty())
            return "no tab to click";
        QWidget *tab = m_random.oneOf(tabs);
        const QString name = tab->objectName(); // Before the tab is deleted.
        click(tab);
        return "click tab " + name;
    }

    /** Makes one gesture in an open menu or list, most often the one that closes it. */
    QString stepInPopup(QWidget &popup)
    {
        auto *menu = qobject_cast<QMenu *>(&popup);
        if (menu)
            return stepInMenu(*menu);
        popup.close();
        return "close list";
    }

private:
    QWidget *anyWidget(const QWidget &window)
    {
        QList<QWidget *> widgets = shown<QAbstractButton>(window);
        if (m_random.oneIn(8))
            widgets = shown<QWidget>(window);
        else if (m_random.oneIn(7))
            widgets = shown<QLineEdit>(window);
        return widgets.isEmpty() ? nullptr : m_random.oneOf(widgets);
    }

    QPoint anyPlace(const QWidget &widget)
    {
        return {m_random.below(widget.width()), m_random.below(widget.height())};
    }

    void click(QPointer<QWidget> widget)
    {
        const QPoint place = anyPlace(*widget);
        clickOnce(widget, place);
        if (widget && m_random.oneIn(6))
            clickOnce(widget, place);
    }

    void clickOnce(const QPointer<QWidget> &widget, const QPoint &place)
    {
        // A menu may open on the press, and the widget may be deleted before the release.
        QTest::mousePress(widget.data(), Qt::LeftButton, {}, place);
        if (widget)
            QTest::mouseRelease(widget.data(), Qt::LeftButton, {}, place);
    }

    void drag(QPointer<QWidget> widget)
    {
        QTest::mousePress(widget.data(), Qt::LeftButton, {}, anyPlace(*widget));
        if (widget && !widget->size().isEmpty())
            QTest::mouseMove(widget.data(), anyPlace(*widget));
        if (widget && !widget->size().isEmpty())
            QTest::mouseRelease(widget.data(), Qt::LeftButton, {}, anyPlace(*widget));
    }

    void turnWheel(QPointer<QWidget> widget)
    {
        const QPoint place = anyPlace(*widget);
        const QPoint global = widget->mapToGlobal(place);
        const QPoint delta = m_random.oneIn(2) ? QPoint(0, 120) : QPoint(0, -120);
        QWheelEvent event(place, global, QPoint(), m_random.oneIn(4) ? delta.transposed() : delta,
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCursor::setPos(global);
        QApplication::sendEvent(widget, &event);
    }

    void hover(QPointer<QWidget> widget)
    {
        const QPoint place = anyPlace(*widget);
        QCursor::setPos(widget->mapToGlobal(place));
        QTest::mouseMove(widget.data(), place);
    }

    void askForMenu(QPointer<QWidget> widget)
    {
        const QPoint place = anyPlace(*widget);
        const auto reason =
            m_random.oneIn(2) ? QContextMenuEvent::Mouse : QContextMenuEvent::Keyboard;
        QContextMenuEvent event(reason, place, widget->mapToGlobal(place));
        QApplication::sendEvent(widget, &event);
    }

    void clickTwice(QPointer<QWidget> widget)
    {
        const QPoint place = anyPlace(*widget);
        click(widget);
        if (widget)
            QTest::mouseDClick(widget.data(), Qt::LeftButton, {}, place);
    }

    QString pressKey(QWidget &window)
    {
        static const QList<Qt::Key> keys{Qt::Key_Tab,   Qt::Key_Backtab, Qt::Key_Return,
                                         Qt::Key_Space, Qt::Key_Escape,  Qt::Key_Down,
                                         Qt::Key_Up,    Qt::Key_Left,    Qt::Key_Right,
                                         Qt::Key_O,     Qt::Key_F10,     Qt::Key_Alt};
        static const QList<std::pair<Qt::KeyboardModifier, Qt::Key>> modifiers{
            {Qt::NoModifier, Qt::Key_unknown},
            {Qt::NoModifier, Qt::Key_unknown},
            {Qt::AltModifier, Qt::Key_Alt},
            {Qt::ControlModifier, Qt::Key_Control}};
        QPointer<QWidget> focused = QApplication::focusWidget();
        if (!focused || !window.isAncestorOf(focused))
            focused = &window;
        const Qt::Key letter = static_cast<Qt::Key>(Qt::Key_A + m_random.below(26));
        const Qt::Key key = m_random.oneIn(3) ? letter : m_random.oneOf(keys);
        const auto [modifier, modifierKey] = m_random.oneOf(modifiers);
        QTest::keyPress(focused.data(), key, modifier);
        // QTest would release the modifier on a widget that the key press has deleted.
        for (const Qt::Key released : {key, modifierKey}) {
            QKeyEvent event(QEvent::KeyRelease, released, modifier);
            if (focused && released != Qt::Key_unknown)
                QApplication::sendEvent(focused, &event);
        }
        return QStringLiteral("key %1 %2").arg(key).arg(modifier);
    }

    QString type(QWidget &window)
    {
        static const QStringList texts{"7",  "0",    "12/9", "37.5",   "5",    "9000%", "abc",
                                       "..", "文字", "",     "fangda", "放大", "v"};
        const QList<QWidget *> fields = shown<QLineEdit>(window);
        if (fields.isEmpty())
            return "nowhere to type";
        const QPointer<QLineEdit> field = qobject_cast<QLineEdit *>(m_random.oneOf(fields));
        const QString text = m_random.oneOf<QString>(texts);
        field->setFocus();
        field->setText(text);
        QTest::keyPress(field.data(), Qt::Key_Return);
        if (field)
            QTest::keyRelease(field.data(), Qt::Key_Return);
        return "type " + text;
    }

    QString stepInMenu(QMenu &menu)
    {
        static const QList<Qt::Key> keys{Qt::Key_Down, Qt::Key_Up,     Qt::Key_Right,
                                         Qt::Key_Left, Qt::Key_Return, Qt::Key_Escape};
        const QList<QAction *> entries = menu.actions();
        QAction *entry = entries.isEmpty() ? nullptr : m_random.oneOf(entries);
        const QRect place = entry ? menu.actionGeometry(entry) : QRect();
        const int kind = m_random.below(6);
        if (kind < 2) {
            QTest::keyClick(&menu, m_random.oneOf(keys));
            return "key in menu";
        }
        if (kind == 2 && place.isValid()) {
            // QTest moves the cursor. The offscreen platform may report this while the next gesture
            // opens a sub-menu, which no window system does and Qt does not handle.
            const QPoint middle = place.center();
            QMouseEvent move(QEvent::MouseMove, middle, menu.mapToGlobal(middle), Qt::NoButton,
                             Qt::NoButton, Qt::NoModifier);
            QCoreApplication::sendEvent(&menu, &move);
            return "hover in menu";
        }
        if (kind == 3 && place.isValid()) {
            const QString name = entry->objectName();
            // Qt guards a menu against deletion in its own events.
            QTest::mouseClick(&menu, Qt::LeftButton, {}, place.center());
            return "choose " + name;
        }
        menu.close();
        return "close menu";
    }

    RandomSource &m_random;
};
