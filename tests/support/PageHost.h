// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/TestHost.h"

#include <QApplication>
#include <QStackedWidget>
#include <QTextEdit>
#include <QWindow>

#include <algorithm>

/** A host with a page in its window. */
class PageHost : public TestHost
{
public:
    explicit PageHost(const QString &description, const SkinMap &skin = {})
        : TestHost(description, skin)
        , page(new QTextEdit)
    {
        window().setCentralWidget(page);
        enableRows();
        show();
        enableEverything();
        page->setFocus();
    }

    void showContext(const QString &name, bool shown) { facade().DoShowContextSlot(name, shown); }
    void showTab(QString name) { facade().DoShowTabSlot(name); }
    bool isShown(const QString &name) const
    {
        const auto *widget = find<QWidget>(name);
        return widget && widget->isVisible();
    }
    QString openTab() const
    {
        const auto *stack = find<QStackedWidget>("tabwidget");
        for (const QPushButton *tab : shownTabs()) {
            if (tab->property("tabindex").toInt() == stack->currentIndex())
                return tab->objectName();
        }
        return {};
    }
    QStringList tabsFromTheLeft() const
    {
        QList<QPushButton *> tabs = shownTabs();
        std::sort(tabs.begin(), tabs.end(),
                  [](QPushButton *a, QPushButton *b) { return a->x() < b->x(); });
        QStringList names;
        for (const QPushButton *tab : tabs)
            names.append(tab->objectName());
        return names;
    }
    bool areRowsSeen() const { return isShown("tabwidget"); }
    QRect pages() const { return QRect(page->mapTo(page->window(), QPoint()), page->size()); }
    /** Waits until the window has laid out what has changed. */
    void settle() const { QTRY_COMPARE(pages().top(), toolBar()->sizeHint().height()); }
    /** As the windowing system reports two fast clicks. */
    void doubleClick(const QString &name)
    {
        auto *widget = find<QAbstractButton>(name);
        const QPoint place = widget->mapTo(&window(), widget->rect().center());
        QTest::mouseDClick(window().windowHandle(), Qt::LeftButton, {}, place);
    }
    /** What a user or host does. */
    void step(const QString &step);
    /** Several steps, separated by commas. */
    void act(const QString &steps);

    QTextEdit *page;

private:
    static Qt::Key keyOf(const QString &name);
};

inline Qt::Key PageHost::keyOf(const QString &name)
{
    if (name == "Alt")
        return Qt::Key_Alt;
    return name == "Escape" ? Qt::Key_Escape : Qt::Key(name.at(0).unicode());
}

inline void PageHost::step(const QString &step)
{
    const QString what = step.section(' ', 0, 0);
    const QString name = step.section(' ', 1);
    if (what == "click")
        click(name);
    else if (what == "double")
        doubleClick(name);
    else if (what == "select" || what == "unselect")
        showContext(name, what == "select");
    else if (what == "tab")
        showTab(name);
    else if (what == "hide" || what == "unhide")
        setVisible(name, what == "unhide");
    else if (what == "disable")
        setUsable(name, false);
    else if (what == "page")
        QTest::mouseClick(page->viewport(), Qt::LeftButton, {},
                          QPoint(20, page->viewport()->height() - 20));
    else if (what == "key")
        QTest::keyClick(QApplication::focusWidget(), keyOf(name));
    else
        QFAIL(qPrintable("There is no step " + step));
}

inline void PageHost::act(const QString &steps)
{
    const QStringList all = steps.split(',', Qt::SkipEmptyParts);
    for (const QString &each : all) {
        step(each);
        settle();
    }
}
