// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/MRToolBar.h"
#include "toolbar/MRToolBarCommands.h"

#include <QAction>
#include <QHash>
#include <QKeySequence>
#include <QMap>
#include <QPointer>
#include <QSettings>
#include <QVariant>

#include <optional>

/** The meaning of one or several commands. */
struct MRToolBarCommands::Entry
{
    bool usable(const QString &name) const;
    std::optional<bool> visible(const QString &name) const;
    std::optional<bool> checked(const QString &name) const;
    QString shownText() const;
    QString shownToolTip() const;

    RunNamed run;
    RunNamed runDouble;
    NamedCondition usableWhen;
    NamedCondition checkedWhen;
    NamedCondition visibleWhen;
    Text text;
    Text toolTip;
    QPointer<QAction> action;
    bool isBound = false;       ///< To an action, which may have been deleted.
    bool isIfDescribed = false; ///< Not reported for a description without it.
};

/**
 * The commands and what the toolbar has been told of them. The functions of the host may delete the
 * object that this belongs to; whoever calls one holds a shared pointer to this.
 */
class MRToolBarCommands::Private
{
public:
    using EntryPointer = std::shared_ptr<Entry>;

    /** A value of the host that the toolbar shows. */
    struct Value
    {
        std::function<QVariant()> get;
        std::function<void(MRToolBar &toolBar, const QVariant &value)> tell;
    };

    explicit Private(MRToolBarCommands *commands)
        : owner(commands)
    {
    }

    void add(const QString &name, const EntryPointer &entry);
    /** The command of that name, by its own name or else by a prefix; null if there is none. */
    EntryPointer entry(const QString &name) const;
    void setValue(const QString &name, const Value &value);

    /** Reports what has changed, or everything. */
    void tell(bool everything);
    /** Does not trust the checked states and the value of that name, which the user has changed. */
    void forget(const QString &value = {});
    void storeRecentFiles() const;
    /** The kept state of the toolbar. */
    void restore() const;
    void stop();

    QPointer<MRToolBarCommands> owner;
    QPointer<MRToolBar> toolBar;
    QStringList names; ///< Those of the entries, in the order in which they were added.
    QHash<QString, EntryPointer> entries;
    QList<std::pair<QString, EntryPointer>> prefixes;
    QMap<QString, Value> values;
    bool isUpdatePending = false;
    bool isTellingZoom = false;

    QPointer<QSettings> settings;
    QString group;
    QStringList recentFiles;
    int recentLimit = 10;

    RunNamed openRecent;
    RunNamed chooseZoom;
    std::function<void(int page)> goToPage;
    std::function<void(const SearchOption &option)> search;
    std::function<void(BackgroundStyle style)> chooseBackground;

private:
    struct Told
    {
        std::optional<bool> usable;
        std::optional<bool> visible;
        std::optional<bool> checked;
        QString text;
        QString toolTip;
        qint64 icon = 0; ///< The key of its cache.
        std::optional<QKeySequence> shortcut;
    };
    using Named = std::pair<QString, EntryPointer>;

    QList<Named> allNamed() const;
    void tellAll();
    void tellStates(const Named &command);
    void tellTexts(const Named &command);
    void tellShortcut(const Named &command);
    void tellChecked(const QList<Named> &commands);
    bool tellChecked(const Named &command, bool again);
    void tellValues();

    QHash<QString, Told> m_told;
    QHash<QString, QVariant> m_toldValues;
    bool m_isTelling = false;
    bool m_isToTellAgain = false;
};
