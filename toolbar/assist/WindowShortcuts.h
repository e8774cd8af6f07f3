// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/description/CommandPlaces.h"

#include <QHash>
#include <QKeySequence>
#include <QList>
#include <QObject>
#include <QPointer>

#include <functional>
#include <optional>
#include <vector>

class QAction;
class QKeyEvent;
class QShortcut;
class QWidget;

/**
 * The key sequences that act in the whole window, also for commands that have not been made yet.
 *
 * Where another shortcut of the window would act on the same keys, that one has them: Qt would
 * trigger neither of the two. So each sequence is switched on or off when its keys are pressed.
 */
class WindowShortcuts : public QObject
{
    Q_OBJECT

public:
    using Usable = std::function<bool(const CommandPlace &)>;

    /**
     * The records whose shortcuts act in the window, in the order of the document; of equal
     * sequences the first one.
     */
    static QList<const Controller *> wantedBy(const QList<Controller *> &records);

    /**
     * @param wanted   the result of wantedBy()
     * @param places   where the commands of the description stand
     * @param window   in whose window the keys act; it may be deleted earlier than this
     * @param isUsable whether a command that has been made may be triggered, and whether one that
     *                 has not stands where it could be
     */
    WindowShortcuts(const QList<const Controller *> &wanted, const CommandPlaces &places,
                    QWidget *window, Usable isUsable);
    ~WindowShortcuts() override;

    /** @name States that the host reports for commands that may not have been made yet
     *  @{ */
    void noteEnabled(const QString &name, bool isEnabled);
    void noteVisible(const QString &name, bool isVisible);
    /** Of an exclusive group, the command checked last is the only one. */
    void noteChecked(const QString &name, bool isChecked);
    /** All checks are taken away. */
    void forgetChecked();
    /** @} */

    /**
     * Gives a command that has been made what has been reported for it until now; from now on it
     * has its states itself.
     */
    void restore(QAction *command);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /** The keys of a command have been pressed. */
    void pressed(const CommandPlace &place);

private:
    /** What the host has said of a command that has not been made. */
    struct Reported
    {
        std::optional<bool> isEnabled;
        std::optional<bool> isVisible;
        std::optional<bool> isChecked;
    };
    struct Entry
    {
        QPointer<QShortcut> shortcut;
        CommandPlace place;
    };

    void add(const CommandPlace &place);
    void note(const QString &name, std::optional<bool> Reported::*state, bool value);
    void follow(const QKeyEvent &key);
    bool isReportedAway(const QString &name) const;
    bool isTaken(const QKeySequence &sequence) const;
    bool isOwn(const QShortcut *shortcut) const;

    QPointer<QWidget> m_window;
    Usable m_isUsable;
    std::vector<Entry> m_entries;
    QHash<QString, Reported> m_reported; ///< By the names of those that have not been made.
    QHash<QString, QString> m_groups;    ///< By command, the exclusive group that it is of.
};
