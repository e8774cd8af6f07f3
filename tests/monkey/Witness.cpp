#include "tests/monkey/Witness.h"

#include "toolbar/MRToolBar.h"
#include "toolbar/NewToolBar.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QComboBox>
#include <QFileInfo>
#include <QMainWindow>
#include <QPushButton>
#include <QToolBar>

#include <algorithm>
#include <utility>

namespace {

constexpr double leastPercent = 10.0;
constexpr double mostPercent = 6400.0;

bool isTypedZoomMode(const QString &mode)
{
    const QLatin1String prefix("vzmode_");
    if (!mode.startsWith(prefix) || !mode.endsWith(QLatin1Char('p')))
        return false;
    bool isNumber = false;
    const double percent = mode.mid(prefix.size()).chopped(1).toDouble(&isNumber);
    return isNumber && percent >= leastPercent && percent <= mostPercent;
}

/** The quick buttons and the entries that show and hide them bear one name by design. */
bool belongsToQuickAccess(const QAction *action)
{
    const QString owner = action->parent() ? action->parent()->objectName() : QString();
    return owner == QLatin1String("toolbar_quickaccessbar") || owner == QLatin1String("qt_set");
}

} // namespace

Witness::Witness(DescribedNames names, std::function<void()> react)
    : m_names(std::move(names))
    , m_react(std::move(react))
{
}

void Witness::require(bool promise, const QString &fault)
{
    if (!promise && m_fault.isEmpty())
        m_fault = fault;
}

void Witness::watch(MRToolBar &facade, QMainWindow &window)
{
    m_toolBar = window.findChild<NewToolBar *>();
    m_total = 0;
    m_areFoldButtonsFree = false;
    m_recentFiles.clear();
    connect(&facade, &MRToolBar::DoActive, this, &Witness::hearActive);
    connect(&facade, &MRToolBar::DoSetZoomMode, this, &Witness::hearZoomMode);
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
        require(!option.content.isEmpty(), QStringLiteral("nothing is searched for"));
        require(option.direction == 0 || option.direction == 1, QStringLiteral("searches nowhere"));
        hear("DoSearchContent");
    });
    connect(&facade, &MRToolBar::DoSetBackground, this, [this] { hear("DoSetBackground"); });
    connect(&facade, &MRToolBar::DoRequestAuthority, this, [this] { hear("DoRequestAuthority"); });
}

void Witness::hear(const char *signal)
{
    require(!m_isSilenceDue, QLatin1String(signal) + QLatin1String(" answers a check by name"));
    ++m_heard;
    ++m_heardSignals[QLatin1String(signal)];
    // What the host does now is not to be silent.
    const bool wasSilenceDue = std::exchange(m_isSilenceDue, false);
    m_react();
    m_isSilenceDue = wasSilenceDue;
}

QString Witness::heard() const
{
    QStringList counts;
    for (auto signal = m_heardSignals.cbegin(); signal != m_heardSignals.cend(); ++signal)
        counts.append(QStringLiteral("%1 %2").arg(signal.value()).arg(signal.key()));
    return counts.join(QStringLiteral(", "));
}

void Witness::hearActive(const QString &name)
{
    require(m_names.commands.contains(name), "no control reports as '" + name + '\'');
    hear("DoActive");
}

void Witness::hearZoomMode(const QString &mode)
{
    // An entry without text has no mode either.
    const bool isKnown = mode.isEmpty() || m_names.zoomModes.contains(mode);
    require(isKnown || isTypedZoomMode(mode), "'" + mode + "' is no zoom mode");
    hear("DoSetZoomMode");
}

void Witness::noteVisibleCall(const QString &name)
{
    if (name.contains(QLatin1String("t_fold")) || name.contains(QLatin1String("t_extend"))
        || name == QLatin1String("toolbar_addtional"))
        m_areFoldButtonsFree = true;
}

void Witness::notePages(int page, int total)
{
    m_total = page != 0 ? total : 0;
}

void Witness::noteRecentFiles(const QStringList &paths)
{
    for (const QString &path : paths)
        m_recentFiles.insert(QFileInfo(path).absoluteFilePath());
}

void Witness::expectChecked(MRToolBar &facade, QString name, bool checked)
{
    const QString wanted = name.section(QLatin1Char(':'), 0, 0);
    const QPointer<QAction> action = m_toolBar->GetActionInTotal(wanted);
    // The menu of recent files reports what is triggered in it, whoever triggers it.
    const bool isReportedByMenu = wanted.contains(QLatin1String("f_clearhistory"));
    const int heardBefore = m_heard;

    const bool wasSilenceDue = std::exchange(m_isSilenceDue, !isReportedByMenu);
    facade.DoSetControlCheckedStateSlot(name, checked);
    m_isSilenceDue = wasSilenceDue;

    require(name == wanted, "the caller's name is '" + name + '\'');
    if (action && action->isCheckable() && m_heard == heardBefore)
        require(action->isChecked() == checked, wanted + " has not taken the checked state");
}

void Witness::expectReset(MRToolBar &facade)
{
    m_total = 0;
    const int heardBefore = m_heard;
    facade.DoResetToolbarSlot();
    // The host may have set anything in its answer to the zoom.
    if (m_heard != heardBefore)
        return;
    for (const QString &name : std::as_const(m_names.all))
        require(!facade.GetControlCheckedState(name), name + " is checked after a reset");
}

void Witness::checkTree(const QMainWindow &window)
{
    const auto strips =
        window.findChildren<QToolBar *>(QStringLiteral("mrtoolbar"), Qt::FindDirectChildrenOnly);
    const auto toolBars = window.findChildren<NewToolBar *>();
    require(strips.size() == 1, QStringLiteral("%1 strips").arg(strips.size()));
    require(toolBars.size() == 1, QStringLiteral("%1 toolbars").arg(toolBars.size()));
    if (toolBars.isEmpty())
        return;
    checkFoldButtons(*toolBars.first());
    checkGroups(*toolBars.first());
    checkNames(*toolBars.first());
    checkZoomBox(*toolBars.first());
}

void Witness::checkFoldButtons(const NewToolBar &toolBar)
{
    const auto *fold = toolBar.findChild<QPushButton *>(QStringLiteral("t_fold"));
    const auto *unfold = toolBar.findChild<QPushButton *>(QStringLiteral("t_extend"));
    if (fold && unfold && !m_areFoldButtonsFree)
        require(fold->isHidden() != unfold->isHidden(),
                fold->isHidden() ? QStringLiteral("neither fold button is shown")
                                 : QStringLiteral("both fold buttons are shown"));
}

void Witness::checkGroups(const NewToolBar &toolBar)
{
    const auto isChecked = [](const auto *control) { return control->isChecked(); };
    const auto groups = toolBar.findChildren<QActionGroup *>();
    for (const QActionGroup *group : groups) {
        const auto actions = group->actions();
        require(!group->isExclusive()
                    || std::count_if(actions.begin(), actions.end(), isChecked) <= 1,
                "two of group " + group->objectName() + " are checked");
    }

    QList<QPushButton *> tabs = toolBar.findChildren<QPushButton *>();
    tabs.erase(std::remove_if(tabs.begin(), tabs.end(),
                              [](const QPushButton *button) {
                                  return button->property("module") != QLatin1String("tabbutton");
                              }),
               tabs.end());
    require(tabs.isEmpty() || std::count_if(tabs.begin(), tabs.end(), isChecked) == 1,
            QStringLiteral("not one tab is checked"));
}

void Witness::checkNames(const NewToolBar &toolBar)
{
    QSet<QString> seen;
    const auto actions = toolBar.findChildren<QAction *>();
    for (const QAction *action : actions) {
        const QString name = action->objectName();
        // Widgets on a row have actions of another kind, one a place.
        if (name.isEmpty() || name == QLatin1String("f_openrecentfile")
            || action->metaObject() != &QAction::staticMetaObject || belongsToQuickAccess(action))
            continue;
        require(!seen.contains(name), "two actions for the command " + name);
        seen.insert(name);
    }
}

void Witness::checkZoomBox(const NewToolBar &toolBar)
{
    const auto *box = toolBar.findChild<QComboBox *>(QStringLiteral("v_zoom"));
    if (box)
        require(box->count() <= m_names.zoomModes.size() + 1,
                QStringLiteral("%1 entries in the zoom box").arg(box->count()));
}

void Witness::checkNothingIsLeft()
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (const QWidget *widget : widgets)
        require(!widget->property("intoolbar").isValid(),
                QLatin1String("left behind: ") + QLatin1String(widget->metaObject()->className())
                    + QLatin1Char(' ') + widget->objectName());
}
