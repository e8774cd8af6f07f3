// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/find/CommandAccess.h"
#include "toolbar/find/CommandIndex.h"
#include "toolbar/find/FindPopup.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QStringList>

#include <optional>

class QThread;

/**
 * Finds the commands of a toolbar by what the user types, runs them and shows where they are. Rows
 * and menus that were never opened are made when one of their commands is chosen.
 */
class CommandFinder : public QObject
{
    Q_OBJECT

public:
    /** @param toolBar owns it, and stands in the window that the field appears in */
    CommandFinder(CommandAccess &access, QWidget *toolBar);
    ~CommandFinder() override;

    /** Opens the field; once more, it is ready to be typed into anew. @param opener may be null */
    void open(QWidget *opener);
    void close();
    bool isOpen() const { return m_popup && !m_popup->isHidden(); }

    /** The names of the commands found last, the newest first. */
    QStringList lastFound() const { return m_lastFound; }
    /** Takes over those of an earlier toolbar. Names of no command do no harm. */
    void setLastFound(const QStringList &names);

    /** The commands have other texts or another look now. */
    void followTexts();
    void followLook();
    /** Commands may have been enabled, disabled, shown or hidden. */
    void followStates();

Q_SIGNALS:
    void lastFoundChanged();

private:
    const CommandIndex &index();
    const CommandPlace *placeOf(std::size_t command) const;
    FoundLine line(std::size_t command) const;
    QString keyOf(std::size_t command) const;
    void takeTexts();
    void makePopup();
    void listVisible();
    void search();
    void list(const QString &typed, bool keepsLine);
    void startSpelling();
    void takeSpelling(const QHash<QChar, QString> &syllables, const QSet<QChar> &ideographs);
    void perform(std::size_t command, FindPopup::Wish wish);
    void remember(const QString &name);

    CommandAccess &m_access;
    QWidget *m_toolBar;
    std::optional<CommandIndex> m_index; ///< From the first opening until the texts change.
    std::vector<std::size_t> m_visible;  ///< The commands that were not hidden on opening.
    std::vector<std::size_t> m_found;
    QString m_typed;             ///< What these were found by.
    QPointer<FindPopup> m_popup; ///< From the first opening on; hidden while closed.
    QStringList m_lastFound;
    QThread *m_spelling = nullptr; ///< Looks up how the texts are spelt.
    bool m_isFollowing = false;    ///< Whether the texts have changed since the last event.
    bool m_isSpelt = false;        ///< Whether it has done so for the texts of the index.
};
