// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include <memory>
#include <optional>

class QScreen;
class QWidget;
class ScreenWatch;

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

    /** As chosen, and at least what the texts need where they take the application's font. */
    float factor() const { return m_factor; }

    /** Whether lengths follow something else than the screen at construction. */
    bool isChosen() const { return m_isChosen || m_usesApplicationFont; }

    /** "screen", or a number as set() takes it; any other text changes nothing. */
    void choose(const QString &choice);
    /** Whether choose() does something with the text. */
    static bool isChoice(const QString &choice);
    /** A fixed factor from 0.5 to 4; any other changes nothing. */
    void set(double factor);

    /**
     * Whether texts take the application's font and size; the lengths then grow with it. "true" or
     * "false"; any other text changes nothing.
     */
    void chooseApplicationFont(const QString &choice);
    bool usesApplicationFont() const { return m_usesApplicationFont; }

    /** Whether fingers are to hit every button. "true" or "false"; any other changes nothing. */
    void chooseTouch(const QString &choice);
    /** The least side of what fingers are to hit, in pixels; 0 where they are not. */
    int leastTarget() const;

    /**
     * The factor that the host has chosen for the toolbar that a widget is on; nothing for other
     * widgets and for a toolbar without a choice.
     */
    static std::optional<float> chosenFor(const QWidget *widget);
    /** The leastTarget() of the toolbar that a widget is on; 0 for other widgets. */
    static int leastTargetFor(const QWidget *widget);

    /**
     * How dense a screen is, by 96 dpi, where an application scales by itself: in its units, and no
     * less than what else it shows there.
     */
    static float ofScreen(const QScreen *screen);

    /** Follows the font of the application. */
    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /** There are other lengths. */
    void changed();

private:
    static const Scale *nearestTo(const QWidget *widget);
    bool decide(bool &wish, const QString &choice);
    void take(float factor);
    void update();
    void followFont();
    void watchScreens();
    void followScreen();

    QWidget *m_toolBar;
    float m_chosen; ///< At first what the screen asks for.
    float m_factor;
    bool m_isChosen = false;
    bool m_usesApplicationFont = false;
    bool m_isForTouch = false;
    bool m_takesScreens = false;
    std::unique_ptr<ScreenWatch> m_screens; ///< While something depends on the screen.
};
