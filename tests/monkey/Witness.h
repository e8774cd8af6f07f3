// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/Elements.h"
#include "toolbar/MRToolBar.h"
#include "toolbar/NewToolBar.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QComboBox>
#include <QDomDocument>
#include <QFileInfo>
#include <QMainWindow>
#include <QMap>
#include <QObject>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>
#include <QSet>
#include <QStackedWidget>
#include <QToolBar>

#include <functional>
#include <utility>

/** The names in a description, by the signals that may report them. */
struct NamesInUse
{
    explicit NamesInUse(const QDomDocument &document)
    {
        // An entry "menu_…" and a quick access button are reported under the command's name.
        static const QRegularExpression prefixes("^(menu_)?(qbar_)?");
        const QList<QDomElement> elements = elementsBelow(document.documentElement());
        for (const QDomElement &element : elements) {
            const QString name = element.attribute("action", element.attribute("name"));
            if (name.isEmpty())
                continue;
            all.append(name);
            commands.insert(QString(name).remove(prefixes));
            // The menu of recent files reports this entry itself, under its full name.
            if (name.contains("f_clearhistory"))
                commands.insert(name);
            if (element.attribute("doubleclick") == "true")
                doubleClick.insert(name);
            if (element.tagName() == "item")
                zoomModes.insert(name);
        }
    }

    QStringList all;           ///< In the order of the document, without empty ones.
    QSet<QString> commands;    ///< What DoActive() may report.
    QSet<QString> doubleClick; ///< What DoDoubleActive() may report.
    QSet<QString> zoomModes;   ///< The predefined entries of the zoom box.
};

inline bool isTypedZoomMode(const QString &mode)
{
    static const QRegularExpression typed("^vzmode_([0-9.]+)p$");
    const double percent = typed.match(mode).captured(1).toDouble();
    return percent >= 10.0 && percent <= 6400.0;
}

/** Quick access buttons and the entries that show and hide them share their names by design. */
inline bool belongsToQuickAccess(const QAction *action)
{
    const QString owner = action->parent() ? action->parent()->objectName() : QString();
    return owner == "toolbar_quickaccessbar" || owner == "qt_set";
}

template <typename Control>
int checkedAmong(const QList<Control *> &controls)
{
    int count = 0;
    for (const Control *control : controls)
        count += control->isChecked() ? 1 : 0;
    return count;
}

/** Checks the invariants of a toolbar during random use. */
class Witness : public QObject
{
public:
    /** @param react is called on every signal, as the host's answer. */
    Witness(NamesInUse names, std::function<void()> react)
        : m_names(std::move(names))
        , m_react(std::move(react))
    {
    }

    /** Call this with every new toolbar. */
    void watch(MRToolBar &facade, QMainWindow &window)
    {
        m_toolBar = window.findChild<NewToolBar *>();
        m_total = 0;
        m_areFoldButtonsFree = false;
        m_recentFiles.clear();
        listenForValues(facade);
        connect(&facade, &MRToolBar::DoSetBackground, this, [this] { hear("DoSetBackground"); });
        connect(&facade, &MRToolBar::DoRequestAuthority, this,
                [this] { hear("DoRequestAuthority"); });
        connect(&facade, &MRToolBar::DoTabShown, this, [this] { hear("DoTabShown"); });
    }

    void checkTree(const QMainWindow &window)
    {
        const auto strips =
            window.findChildren<QToolBar *>("mrtoolbar", Qt::FindDirectChildrenOnly);
        const auto toolBars = window.findChildren<NewToolBar *>();
        require(strips.size() == 1, QStringLiteral("%1 strips").arg(strips.size()));
        require(toolBars.size() == 1, QStringLiteral("%1 toolbars").arg(toolBars.size()));
        for (const NewToolBar *toolBar : toolBars) {
            checkFoldButtons(*toolBar);
            checkGroups(*toolBar);
            checkTabs(*toolBar);
            checkNames(*toolBar);
            checkZoomBox(*toolBar);
        }
    }

    /** Call this after a window has been deleted. */
    void checkNothingIsLeft()
    {
        const QWidgetList widgets = QApplication::allWidgets();
        for (const QWidget *widget : widgets)
            require(!widget->property("intoolbar").isValid(),
                    QStringLiteral("left behind: ") + widget->metaObject()->className() + ' '
                        + widget->objectName());
    }

    /** The first violation of an invariant; empty as long as there is none. */
    QString fault() const { return m_fault; }
    /** How often each signal was emitted, for the report of a run. */
    QString heard() const
    {
        QStringList counts;
        for (auto signal = m_heardSignals.cbegin(); signal != m_heardSignals.cend(); ++signal)
            counts.append(QStringLiteral("%1 %2").arg(signal.value()).arg(signal.key()));
        return counts.join(", ");
    }

    // The calls of the host.

    void noteVisibleCall(const QString &name)
    {
        if (name.contains("t_fold") || name.contains("t_extend") || name == "toolbar_addtional")
            m_areFoldButtonsFree = true;
    }

    void notePages(int page, int total) { m_total = page != 0 ? total : 0; }

    void noteRecentFiles(const QStringList &paths)
    {
        for (const QString &path : paths)
            m_recentFiles.insert(QFileInfo(path).absoluteFilePath());
    }

    void expectChecked(MRToolBar &facade, QString name, bool checked)
    {
        const QString wanted = name.section(':', 0, 0);
        const QPointer<QAction> action = m_toolBar->GetActionInTotal(wanted);
        // The menu of recent files reports every trigger of its entries, also one by name.
        const bool isReportedByMenu = wanted.contains("f_clearhistory");
        const int heardBefore = m_heard;

        const bool wasSilenceDue = std::exchange(m_isSilenceDue, !isReportedByMenu);
        facade.DoSetControlCheckedStateSlot(name, checked);
        m_isSilenceDue = wasSilenceDue;

        require(name == wanted, "the caller's name is '" + name + '\'');
        if (action && action->isCheckable() && m_heard == heardBefore)
            require(action->isChecked() == checked, wanted + " has not taken the checked state");
    }

    void expectReset(MRToolBar &facade)
    {
        const int heardBefore = m_heard;
        facade.DoResetToolbarSlot();
        // After the call: the user may go to a page while the host answers DoSetZoomMode().
        m_total = 0;
        // The host may have checked controls in its answer to DoSetZoomMode().
        if (m_heard != heardBefore)
            return;
        for (const QString &name : std::as_const(m_names.all))
            require(!facade.GetControlCheckedState(name), name + " is checked after a reset");
    }

private:
    void require(bool invariant, const QString &fault)
    {
        if (!invariant && m_fault.isEmpty())
            m_fault = fault;
    }

    void hear(const QString &signal)
    {
        require(!m_isSilenceDue, signal + " answers a check by name");
        ++m_heard;
        ++m_heardSignals[signal];
        // Calls that the host makes in its answer may cause signals.
        const bool wasSilenceDue = std::exchange(m_isSilenceDue, false);
        m_react();
        m_isSilenceDue = wasSilenceDue;
    }

    void listenForValues(MRToolBar &facade)
    {
        connect(&facade, &MRToolBar::DoActive, this, [this](const QString &name) {
            require(m_names.commands.contains(name), "no control reports as '" + name + '\'');
            hear("DoActive");
        });
        connect(&facade, &MRToolBar::DoSetZoomMode, this, [this](const QString &mode) {
            // An entry without text has no mode.
            const bool isKnown = mode.isEmpty() || m_names.zoomModes.contains(mode);
            require(isKnown || isTypedZoomMode(mode), "'" + mode + "' is no zoom mode");
            hear("DoSetZoomMode");
        });
        connect(&facade, &MRToolBar::DoGotoPage, this, [this](int page) {
            require(page >= 1 && page <= m_total,
                    QStringLiteral("page %1 of %2 is asked for").arg(page).arg(m_total));
            hear("DoGotoPage");
        });
        connect(&facade, &MRToolBar::DoDoubleActive, this, [this](const QString &name) {
            require(m_names.doubleClick.contains(name), name + " is no double-click control");
            hear("DoDoubleActive");
        });
        connect(&facade, &MRToolBar::DoOpenFile, this, [this](const QString &path) {
            require(m_recentFiles.contains(path), path + " was never a recent file");
            hear("DoOpenFile");
        });
        connect(&facade, &MRToolBar::DoSearchContent, this, [this](const SearchOption &option) {
            require(!option.content.isEmpty(), "nothing is searched for");
            require(option.direction == 0 || option.direction == 1, "searches nowhere");
            hear("DoSearchContent");
        });
    }

    void checkFoldButtons(const NewToolBar &toolBar)
    {
        const auto *fold = toolBar.findChild<QPushButton *>("t_fold");
        const auto *unfold = toolBar.findChild<QPushButton *>("t_extend");
        if (fold && unfold && !m_areFoldButtonsFree)
            require(fold->isHidden() != unfold->isHidden(), "not one of the fold buttons is shown");
    }

    void checkGroups(const NewToolBar &toolBar)
    {
        const auto groups = toolBar.findChildren<QActionGroup *>();
        for (const QActionGroup *group : groups)
            require(!group->isExclusive() || checkedAmong(group->actions()) <= 1,
                    "two of group " + group->objectName() + " are checked");
    }

    void checkTabs(const NewToolBar &toolBar)
    {
        QList<QPushButton *> tabs;
        const auto buttons = toolBar.findChildren<QPushButton *>();
        for (QPushButton *button : buttons) {
            if (button->property("module") == "tabbutton")
                tabs.append(button);
        }
        require(tabs.isEmpty() || checkedAmong(tabs) == 1, "not one tab is checked");
        const auto *rows = toolBar.findChild<QStackedWidget *>("tabwidget");
        for (const QPushButton *tab : std::as_const(tabs))
            require(!tab->isChecked() || tab->property("tabindex").toInt() == rows->currentIndex(),
                    tab->objectName() + " is checked, and not on show");
    }

    void checkNames(const NewToolBar &toolBar)
    {
        QSet<QString> seen;
        const auto actions = toolBar.findChildren<QAction *>();
        for (const QAction *action : actions) {
            const QString name = action->objectName();
            // Widgets on a row have a QWidgetAction for each place.
            if (name.isEmpty() || name == "f_openrecentfile"
                || action->metaObject() != &QAction::staticMetaObject
                || belongsToQuickAccess(action))
                continue;
            require(!seen.contains(name), "two actions for the command " + name);
            seen.insert(name);
        }
    }

    void checkZoomBox(const NewToolBar &toolBar)
    {
        const auto *box = toolBar.findChild<QComboBox *>("v_zoom");
        require(!box || box->count() <= m_names.zoomModes.size() + 1,
                "too many entries in the zoom box");
    }

    NamesInUse m_names;
    std::function<void()> m_react;
    QString m_fault;
    QSet<QString> m_recentFiles;
    NewToolBar *m_toolBar = nullptr; ///< The toolbar of the watched facade.
    int m_total = 0;
    int m_heard = 0;
    QMap<QString, int> m_heardSignals;
    bool m_isSilenceDue = false;
    bool m_areFoldButtonsFree = false; ///< The host has shown or hidden one of them by name.
};
