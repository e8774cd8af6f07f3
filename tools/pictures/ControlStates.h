// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSet>
#include <QString>

class PictureSheet;
class QMainWindow;
class QWidget;

/** Takes one control of each kind in each state that it can be in. */
class ControlStates
{
public:
    ControlStates(QMainWindow &window, PictureSheet &sheet);

    /** Takes the kinds that are on show and have not been taken yet. */
    void takeNewKinds();

private:
    void takeStates(const QString &kind, QWidget *control);
    void takeChecked(QWidget *control);
    void takePressed(QWidget *control);
    void takeDisabled(QWidget *control);
    void take(const QString &caption, const QWidget *control);

    QMainWindow &m_window;
    PictureSheet &m_sheet;
    QSet<QString> m_taken;
};
