// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPointer>

#include <optional>

class QScreen;
class QWidget;
class QWindow;

/**
 * What the lengths of a toolbar at 96 dpi are multiplied by. At first, and for good unless the host
 * says something else, that is the density of the screen at construction.
 */
class Scale : public QObject
{
    Q_OBJECT

public:
    /** @param toolBar owns it */
    explicit Scale(QWidget *toolBar);
    ~Scale() override;

    float factor() const { return m_factor; }

    /** "screen", or a number as set() takes it; any other text changes nothing. */
    void choose(const QString &choice);
    /** A fixed factor from 0.5 to 4; any other changes nothing. */
    void set(double factor);

    /**
     * The factor that the host has chosen for the toolbar that a widget is on; nothing for other
     * widgets and for a toolbar without a choice.
     */
    static std::optional<float> chosenFor(const QWidget *widget);

    /**
     * How dense a screen is, by 96 dpi, where an application scales by itself: in its units, and no
     * less than what else it shows there.
     */
    static float ofScreen(const QScreen *screen);

    /** Follows the toolbar to the window that it is shown in. */
    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void changed();

private:
    void take(float factor);
    void followScreens(bool follow);
    void followWindow();
    void followScreen();

    QWidget *m_toolBar;
    float m_factor;
    bool m_isChosen = false;
    bool m_followsScreens = false;
    QPointer<QWindow> m_window;
    QPointer<QScreen> m_screen;
};
