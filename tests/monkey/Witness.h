#pragma once

#include "tests/monkey/DescribedNames.h"
#include "toolbar/ToolBarTypes.h"

#include <QObject>
#include <QSet>

#include <functional>

class MRToolBar;
class NewToolBar;
class QMainWindow;

/** Sees to it that whatever is done to a toolbar, it keeps to what it promises. */
class Witness : public QObject
{
    Q_OBJECT

public:
    /** @param react what the host does when it hears of something */
    Witness(DescribedNames names, std::function<void()> react);

    /** A new toolbar has come up. */
    void watch(MRToolBar &facade, QMainWindow &window);
    void checkTree(const QMainWindow &window);
    /** To be asked once a window has gone. */
    void checkNothingIsLeft();
    /** The first broken promise; empty as long as there is none. */
    QString fault() const { return m_fault; }
    /** How often each signal has come, for the report of a run. */
    QString heard() const;

    /** @name What the host says
     *  @{ */
    void noteVisibleCall(const QString &name);
    void notePages(int page, int total);
    void noteRecentFiles(const QStringList &paths);
    void expectChecked(MRToolBar &facade, QString name, bool checked);
    void expectReset(MRToolBar &facade);
    /** @} */

private:
    void require(bool promise, const QString &fault);
    void hear(const char *signal);
    void hearActive(const QString &name);
    void hearZoomMode(const QString &mode);
    void checkFoldButtons(const NewToolBar &toolBar);
    void checkGroups(const NewToolBar &toolBar);
    void checkNames(const NewToolBar &toolBar);
    void checkZoomBox(const NewToolBar &toolBar);

    DescribedNames m_names;
    std::function<void()> m_react;
    QString m_fault;
    QSet<QString> m_recentFiles;
    NewToolBar *m_toolBar = nullptr; ///< Of the facade that is watched; for the host's calls only.
    int m_total = 0;
    int m_heard = 0;
    QMap<QString, int> m_heardSignals;
    bool m_isSilenceDue = false;
    bool m_areFoldButtonsFree = false; ///< The host has shown or hidden one of them by itself.
};
