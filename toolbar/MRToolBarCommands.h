// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/MRToolBarExport.h"
#include "toolbar/ToolBarTypes.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>

class MRToolBar;
class QAction;
class QSettings;

/**
 * The commands of a host by the names of the description: what each does, when it is usable and
 * whether it is checked. It answers the signals of an MRToolBar, so that the host need not, and
 * reports to it what has changed.
 *
 * @code
 * MRToolBarCommands commands(&toolBar);
 * commands.add("f_open", [&] { open(); });
 * commands.add("v_rotate", [&] { view.rotate(); }).usableWhen([&] { return view.hasPicture(); });
 * commands.add("v_zoomin", zoomInAction);
 * QObject::connect(&view, &View::changed, &commands, &MRToolBarCommands::update);
 * @endcode
 *
 * Everything is reported after the first commands were added, when control returns to the event
 * loop, and again when the toolbar has made controls; changes are reported after each command and
 * on update(). A name that no control bears does no harm; the logging category
 * `mrtoolbar.description` tells of it.
 *
 * An empty function is allowed everywhere. A function may delete the toolbar, its window or this
 * object. It must not use what is deleted before this object.
 */
class MRTOOLBAR_EXPORT MRToolBarCommands : public QObject
{
    Q_OBJECT

public:
    /** What a command does. */
    using Run = std::function<void()>;
    /** For several commands that share a function: with the name of the one that was used. */
    using RunNamed = std::function<void(const QString &name)>;
    /** Whether something holds now; it is asked often. */
    using Condition = std::function<bool()>;
    /** For several commands that share a condition: with the name of the one in question. */
    using NamedCondition = std::function<bool(const QString &name)>;
    /** A text for now. */
    using Text = std::function<QString()>;

    struct Entry;

    /** What add() returns, to say more of the command; not to be kept. */
    class MRTOOLBAR_EXPORT Command
    {
    public:
        /** Always usable without it. */
        Command &usableWhen(const Condition &condition);
        /** The same for commands that share a condition; it gets the name of each. */
        Command &usableWhen(const NamedCondition &condition);
        /** Without it the toolbar checks and unchecks the control as it is described. */
        Command &checkedWhen(const Condition &condition);
        /** The same for commands that share a condition; it gets the name of each. */
        Command &checkedWhen(const NamedCondition &condition);
        /** Without it the control is shown or hidden as it is described. */
        Command &visibleWhen(const Condition &condition);
        /** Another text than is described, while it is not empty. */
        Command &withText(const Text &text);
        /** Another tooltip than is described, while it is not empty. */
        Command &withToolTip(const Text &tip);
        /** Of a control that is described with `doubleclick`. */
        Command &onDoubleClick(const Run &run);

    private:
        friend class MRToolBarCommands;
        explicit Command(std::shared_ptr<Entry> entry);

        std::shared_ptr<Entry> m_entry;
    };

    /**
     * @param toolBar may be null, and may be deleted earlier than this
     * @param parent  the owner, or null
     */
    explicit MRToolBarCommands(MRToolBar *toolBar, QObject *parent = nullptr);
    ~MRToolBarCommands() override;

    /** Goes on with another toolbar, which is told everything. */
    void setToolBar(MRToolBar *toolBar);

    /**
     * Adds a command. Without a function it is only reported: a field, or an area. Added again, a
     * name has the new meaning.
     */
    Command add(const QString &name, const Run &run = {});
    /** Adds several commands that share a function. */
    Command add(const QStringList &names, const RunNamed &run);
    /**
     * Every command of the description whose name begins with @p prefix and that is not added by
     * its own name.
     */
    Command addPrefix(const QString &prefix, const RunNamed &run);
    /**
     * Binds a command to an action of the host, which is triggered by it; text, icon, tooltip,
     * shortcut, enabled, visible and checked state follow the action. Without a text, an icon or a
     * shortcut of the action the described one is shown, and such a shortcut becomes the action's.
     * The action is added to the window, so that its shortcut acts there. When it is deleted, the
     * command is disabled.
     */
    Command add(const QString &name, QAction *action);

    /**
     * Connects the page field and the commands `d_firstpage`, `d_prevpage`, `d_nextpage` and
     * `d_lastpage`, as far as they are described.
     * @param page  the current page, counted from 1
     * @param count 0 without a document
     * @param goTo  gets a page from 1 to the count
     */
    void setPages(const std::function<int()> &page, const std::function<int()> &count,
                  const std::function<void(int page)> &goTo);
    /**
     * Connects the zoom box and the buttons with `vzmode_` in their names: a mode is a text such as
     * "vzmode_fitpage" or "vzmode_125p".
     * @param mode   what the box shows; empty without a document, which disables the box
     * @param choose gets the mode that the user has chosen or typed
     */
    void setZoom(const Text &mode, const std::function<void(const QString &mode)> &choose);
    /** The percentage of a zoom mode; 0 for one that is none. */
    static double zoomPercent(const QString &mode);
    /** The zoom mode of a percentage, such as "vzmode_125p" for 125. */
    static QString zoomMode(double percent);

    /** Connects the search bar and the search fields of rows. */
    void setSearch(const std::function<void(const SearchOption &option)> &search);
    /** Connects the menu of page backgrounds. */
    void setBackground(const std::function<BackgroundStyle()> &style,
                       const std::function<void(BackgroundStyle style)> &choose);
    /** Shows the tabs of a context while the condition is true. */
    void setContext(const QString &name, const Condition &isShown);

    /** @name What is kept between two runs
     *  @{ */
    /**
     * Keeps the recent files and what the user has made of the toolbar, the quick access setting
     * included, in @p settings below @p group, and restores the toolbar from it at once. The host
     * owns the settings; when they are deleted, nothing is kept any more.
     */
    void keepIn(QSettings *settings, const QString &group = QStringLiteral("toolbar"));
    /** Opens the recent file that the user has chosen; `f_clearhistory` is answered, too. */
    void setRecentFiles(const std::function<void(const QString &fileName)> &open, int limit = 10);
    /** The same for a host that keeps the list itself. */
    void setRecentFiles(const std::function<QStringList()> &files,
                        const std::function<void(const QString &fileName)> &open);
    /** Puts a file at the start of the recent files, or moves it there. */
    void addRecentFile(const QString &fileName);
    void clearRecentFiles();
    QStringList recentFiles() const;
    /** @} */

    /** Runs the command as a click does, if it is usable; for keys of the host. */
    bool run(const QString &name);
    /** Whether a command of that name was added and its condition is true. */
    bool isUsable(const QString &name) const;

public Q_SLOTS:
    /** Reports what has changed when control returns to the event loop; called often, once. */
    void update();
    /** Reports what has changed now. */
    void refresh();
    /** Reports everything, also what is typed over in a field. */
    void refreshAll();

Q_SIGNALS:
    /** A command was run. */
    void triggered(const QString &name);
    /** The user has used a control whose command was not added, or has no function. */
    void unhandled(const QString &name);

private:
    class Private;

    void choose(const Run &choice, const QString &value = {});
    void connectFields();
    void connectKept();
    void use(const QString &name);
    void answer(const QString &name, const RunNamed &run);
    void addDescribed(const QString &name, const Run &run, const Condition &isUsable);

    std::shared_ptr<Private> d; ///< Shared with those who call the host's functions.
};
