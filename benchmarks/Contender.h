// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class QMainWindow;

/**
 * One way to give a window the commands of a workload. The object name of a tab button is the name
 * of the tab, and a click on it opens the row.
 */
class Contender
{
public:
    virtual ~Contender() = default;

    /** Reads the files that a host reads before it creates the toolbar; timed separately. */
    virtual void prepare() {}
    /** Creates everything that the first shown window needs, including the row of the first tab. */
    virtual void build(QMainWindow &window) = 0;
    /** Deletes what a host does not need any more after construction; not timed. */
    virtual void tidyUp() {}

    virtual void setUsable(QString &name, bool usable) = 0;
    virtual void setChecked(QString &name, bool checked) = 0;
    /** Sets another main colour; returns false if there are no colours to change. */
    virtual bool changeColours() { return false; }
    /** Opens a field to find commands in; returns false if there is none. */
    virtual bool openFinder() { return false; }
    /** Lays everything out for another scale; returns false if there is no scale to change. */
    virtual bool changeScale() { return false; }
};
