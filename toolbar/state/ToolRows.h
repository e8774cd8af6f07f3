// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/NamedList.h"
#include "toolbar/state/TabRequests.h"

#include <QList>
#include <QMap>
#include <QObject>
#include <QPointer>

class MRMainToolBar;
class MRScrollWidget;
class QAbstractButton;
class QPushButton;
class QStackedWidget;
class QToolBar;
class QWidget;
class RowPeek;

/** Which tab's row is on show, and whether the rows are folded. */
class ToolRows : public QObject
{
    Q_OBJECT

public:
    /** Whether the row of the tab on show is shown, other than by a peek. */
    enum class State
    {
        None, ///< The tab has no row.
        Shown,
        Hidden
    };

    /** The toolbar's own members, which hold the state. */
    struct Members
    {
        const QPointer<QStackedWidget> &stack;
        QPointer<MRScrollWidget> &currentRow;
        const QPointer<QWidget> &foldButton;
        const QPointer<QWidget> &unfoldButton;
        const NamedList<QPushButton> &tabs;
        const QMap<QString, QPointer<QToolBar>> &rows;
        const NamedList<QWidget> &extraGroups;
    };

    explicit ToolRows(const Members &members);

    /** From now on a click on a tab of folded rows shows them through @p peek, unfolding nothing.
     */
    void usePeek(RowPeek *peek);

    /** What a click on a tab does: opens it, or folds or unfolds the rows if it is on show. */
    void click(const QAbstractButton *tab);
    /** Opens the tab of that name, unless it is hidden or disabled; never folds. */
    void show(const QString &name);
    /** The same for a tab that is restored: folded rows stay folded, and nothing is laid over. */
    void restore(const QString &name);
    /** Shows or hides the tabs of that context; if one was on show, an earlier tab is again. */
    void showContext(const QString &context, bool isShown);
    /** Does the same, but for the filling of a row, by the tab's position. */
    void toggle(int tab);
    /** Puts the first page on show, before there is anybody to see it. */
    void showFirst(int tab, bool isVisible, bool isChecked);
    /**
     * Folds the rows and opens the next tab if @p tab is on show; returns whether it was. The
     * object may be gone on return.
     */
    bool leaveTab(const QAbstractButton *tab);

    /** Hides or shows all rows, as the fold buttons do. */
    void setFolded(bool isFolded);
    bool isFolded() const { return m_isFolded; }
    /** Shows or hides the row on show, as the area of the rows is by name. */
    void setShown(bool isShown);
    State state() const;
    /** The name of the tab on show; empty if there is none. */
    QString currentTab() const;
    /** The one on show last that needs no context; empty if there was none. */
    QString lastingTab() const;
    /** Shows the extra groups of that name and hides the others. */
    void showExtraGroups(const QString &tabName);
    void enableExtraGroups(bool isEnabled);

Q_SIGNALS:
    /** A tab is opened for the first time: its row has no controls yet. */
    void rowNeeded(MRMainToolBar *row);
    /** Another tab is on show now. The host may answer and delete the toolbar, and this with it. */
    void tabShown(const QString &name);
    /** The rows have been folded or unfolded, not by name and not for a peek. */
    void foldedChanged(bool isFolded);

private:
    /** What a tab is asked for by. */
    enum class By
    {
        Click,
        Call,
        Return ///< Folded rows stay folded.
    };

    void request(const QString &name, By by);
    void request(const QAbstractButton *tab, By by);
    void open(int tab, By by);
    void bringIntoView(By by);
    bool endPeek();
    void toggleFolded();
    void announce();
    QString nameOf(int tab) const;
    bool isContextHidden(int tab) const;
    void leaveHiddenContext();
    const QAbstractButton *tabToReturnTo() const;
    void showPage(int tab);
    void showFoldButtons(bool isFolded);

    const Members m_members;
    TabRequests m_requests;
    bool m_isRowWanted = true; ///< As last set by name.
    bool m_isFolded = false;
    QPointer<RowPeek> m_peek;
    QList<int> m_opened; ///< Each tab that has been on show, the last one at the end.
    int m_announced = -1;
};
