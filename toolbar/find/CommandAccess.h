// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/description/CommandPlaces.h"
#include "toolbar/find/FindLook.h"

#include <QIcon>
#include <QString>

class QWidget;

/** What the finder asks of its toolbar. */
class CommandAccess
{
public:
    struct State
    {
        bool isMade;    ///< Before that it is not known whether it is enabled; it counts as such.
        bool isVisible; ///< As far as host and description say; its row need not be on show.
        bool isEnabled;
    };

    virtual ~CommandAccess() = default;

    virtual const CommandPlaces &places() const = 0;
    virtual State state(const CommandPlace &place) const = 0;

    /** What is shown of the command, in the language of the moment. */
    virtual QString text(const CommandPlace &place) const = 0;
    virtual QString toolTip(const CommandPlace &place) const = 0;
    /** Why the command is disabled; empty if nobody has said. */
    virtual QString reason(const CommandPlace &place) const = 0;
    virtual QIcon icon(const CommandPlace &place) const = 0;
    /** Whether the icon is drawn for the coloured ground of the top line only. */
    virtual bool isIconForTopLine(const CommandPlace &place) const = 0;
    /** From the tab or the application button down, such as "Start › Zoom". */
    virtual QString where(const CommandPlace &place) const = 0;

    /** Makes the row or the menus; false if the toolbar, and this with it, is gone. */
    virtual bool make(const CommandPlace &place) = 0;
    /** What a click on the command does. The toolbar may be gone on return. */
    virtual void trigger(const CommandPlace &place) = 0;
    /** Opens the tab and outlines the control, or the one that opens its menu. */
    virtual void reveal(const CommandPlace &place) = 0;

    /** What the finder appears below unless a button has opened it. */
    virtual QWidget *topLine() const = 0;
    virtual FindLook look() const = 0;
};
