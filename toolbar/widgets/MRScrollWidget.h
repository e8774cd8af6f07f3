// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/skin/Scheme.h"

#include <QPushButton>
#include <QScrollArea>

#include <memory>

class EndFade;
class QPropertyAnimation;

/**
 * The arrow at one end of a scrolling tool row. It is a flat container that keeps its place; the
 * arrow inside it comes and goes.
 */
class MRExtendButton : public QPushButton
{
    Q_OBJECT

public:
    explicit MRExtendButton(QWidget *parent = nullptr);

    /**
     * Sets the object name, and with it the side: the arrow points to the left if @p name contains
     * "left", otherwise to the right.
     */
    void SetObjectName(QString name);

    /** Shows or hides the arrow; the container stays. */
    void SetExtendButtonVisible(bool visible);

    /** Gives the arrow the size that the scale asks for. */
    void fitArrow();

Q_SIGNALS:
    /** The arrow was clicked. */
    void Clicked();

protected:
    void changeEvent(QEvent *event) override;

private:
    void updateArrow();
    void nameArrow();

    QPushButton *m_arrow;
    SchemeLook m_look; ///< That the arrow is drawn for.
};

/**
 * An area without scroll bars that shows a wide tool row. It is scrolled with a short animation by
 * the wheel, anywhere over the row but a combo box, and by the arrows at its ends.
 */
class MRScrollArea : public QScrollArea
{
    Q_OBJECT

public:
    explicit MRScrollArea(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    bool eventFilter(QObject *watched, QEvent *event) override;

    /** While its style is paused, the area takes over none; at the end it takes over the last. */
    void setStylePaused(bool paused);
    bool isStylePaused() const { return m_isStylePaused; }

Q_SIGNALS:
    /** Whether there is hidden content on @p side, which is "left" or "right". */
    void SetExtendButtonVisible(QString side, bool visible);

public Q_SLOTS:
    /**
     * Scrolls as a click on an arrow says: from the start to the far end, from the end back to the
     * start, in between by a step to the side that the sender is named after. Nothing happens
     * while the row is still moving.
     */
    void DoScrollAction();

    /** Reports on both sides with SetExtendButtonVisible(). */
    void UpdateExtendButton();

protected:
    bool event(QEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    bool isScrolling() const;
    int hiddenWidth() const;
    void fadeEnds();
    void animate(int from, int to);

    QPropertyAnimation *m_animation;
    EndFade *m_leftFade = nullptr; ///< There is none while the row has room.
    EndFade *m_rightFade = nullptr;
    std::shared_ptr<QObject> m_wheelWatch; ///< Calls eventFilter(); shared by all areas.
    bool m_isStylePaused = false;
    bool m_hasMissedStyle = false; ///< While it was paused.
};

/** A tool row in its scrolling area, between the two arrows. */
class MRScrollWidget : public QWidget
{
    Q_OBJECT

public:
    explicit MRScrollWidget(QWidget *parent = nullptr);

    /** Puts @p widget into the area, which owns it from now on. */
    void SetWidget(QWidget *widget, Qt::Alignment alignment);

    /** Gives the arrows the size that the scale asks for. */
    void fitArrows();

public Q_SLOTS:
    /** Shows or hides an arrow: the left one for exactly "left", otherwise the right one. */
    void DoSetExtendButtonVisible(QString side, bool visible);

private:
    MRExtendButton *m_left;
    MRExtendButton *m_right;
    MRScrollArea *m_area;
};
