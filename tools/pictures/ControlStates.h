// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSet>
#include <QString>

class PictureSheet;
class QMainWindow;
class QWidget;

/** Takes pictures of one control of each kind in each of its states. */
class ControlStates
{
public:
    ControlStates(QMainWindow &window, PictureSheet &sheet);

    /** Takes pictures of the visible kinds that have none yet. */
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
