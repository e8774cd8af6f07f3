// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/widgets/Panel.h"

#include <QCoreApplication>
#include <QPushButton>

class QHBoxLayout;

/** The arrow at one end of a strip of tabs that has no room for all of them. */
class TabStripArrow : public QPushButton
{
    Q_DECLARE_TR_FUNCTIONS(TabStripArrow)

public:
    TabStripArrow(Qt::ArrowType direction, QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void showName();

    Qt::ArrowType m_direction;
};

/**
 * The tabs of the top line. Where there is no room for all of them the strip shows those that fit
 * as a whole, and the arrows at its ends and the wheel bring others; the tab that is checked or has
 * the focus is among them.
 */
class TabStrip : public Panel
{
public:
    /** Takes over the layout with all its tabs. */
    explicit TabStrip(QHBoxLayout *tabs, QWidget *parent = nullptr);

    /** Moves the strip as little as needed to show @p tab, or its middle where all is too wide. */
    void reveal(const QWidget *tab);

    QSize sizeHint() const override;
    /** Room for one tab. */
    QSize minimumSizeHint() const override;
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    QList<QWidget *> shownTabs() const;
    int roomForTabs() const;
    /** The part of the tabs to show: those that fit as a whole, or what there is room for. */
    QRect wholeTabs(int room) const;
    int offsetShowing(const QWidget *tab) const;
    void moveBy(int direction);
    void moveTo(int offset);
    void placeParts();

    QWidget *m_view;
    QWidget *m_tabs;
    TabStripArrow *m_left;
    TabStripArrow *m_right;
    int m_offset = 0;
};
