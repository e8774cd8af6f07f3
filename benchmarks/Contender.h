// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class QMainWindow;

/**
 * One way to give a window the commands of a workload. The tab buttons bear the tabs' names; a
 * click on one opens its row.
 */
class Contender
{
public:
    virtual ~Contender() = default;

    /** Reads what the host would read before there is a toolbar; timed apart. */
    virtual void prepare() {}
    /** Makes everything that is there when the window is shown, the row of the first tab too. */
    virtual void build(QMainWindow &window) = 0;
    /** Lets go of what a host needs no more once there is a toolbar; not timed. */
    virtual void tidyUp() {}

    virtual void setUsable(QString &name, bool usable) = 0;
    virtual void setChecked(QString &name, bool checked) = 0;
    /** Another main colour; false if there are no colours to change. */
    virtual bool changeColours() { return false; }
};
